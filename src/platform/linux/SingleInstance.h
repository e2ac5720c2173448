// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QObject>
#include <functional>
#include <string>
#include <string_view>

namespace brellowind::platform {

/// Ensures a single instance of the program in a session by owning a name on the session bus.
class SingleInstance : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.brellowind.Brellowind")

public:
    /// `session` is the name of the session, in any characters; one bus may serve several sessions.
    /// `onSecondStart` runs whenever another instance is started, with its activation token, which
    /// may be empty.
    SingleInstance(QDBusConnection bus, std::string_view session,
                   std::function<void(const std::string& activationToken)> onSecondStart);
    ~SingleInstance() override;

    /// Returns true if this process is the only instance, or there is no bus. Otherwise notifies
    /// the running instance; this process should exit. Blocks for the bus, not for the other
    /// process.
    bool claim();

public Q_SLOTS:
    Q_SCRIPTABLE void Open(const QString& activationToken);

private:
    QDBusConnection bus_;
    QString name_;
    std::function<void(const std::string&)> onSecondStart_;
};

} // namespace brellowind::platform
