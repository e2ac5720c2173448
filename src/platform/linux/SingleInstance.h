#pragma once

#include <QDBusConnection>
#include <QObject>
#include <functional>
#include <string>
#include <string_view>

namespace brellowind::platform {

/// The only process of this program in a session: it owns a name on the session bus.
class SingleInstance : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.brellowind.Brellowind")

public:
    /// `session` is the name of the session, in any characters; one bus may serve several sessions.
    /// `onSecondStart` runs whenever another process found this one there. It gets the token of the
    /// user's action that started that one; empty: there is none.
    SingleInstance(QDBusConnection bus, std::string_view session,
                   std::function<void(const std::string& activationToken)> onSecondStart);
    ~SingleInstance() override;

    /// True when this process is the only one, or no bus is there to tell. Otherwise the other one
    /// is told, and this one should end. Waits for the bus, but not for the other process.
    bool claim();

public Q_SLOTS:
    Q_SCRIPTABLE void Open(const QString& activationToken);

private:
    QDBusConnection bus_;
    QString name_;
    std::function<void(const std::string&)> onSecondStart_;
};

} // namespace brellowind::platform
