#pragma once

#include <QDBusConnection>
#include <QObject>
#include <functional>

namespace brellowind::platform {

/// Makes one process of this program the only one of its user on a display, by owning a name on the
/// session bus.
class SingleInstance : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.brellowind.Brellowind")

public:
    /// `display` tells one display of the user from another. `onSecondStart` runs whenever another
    /// process found this one there.
    SingleInstance(QDBusConnection bus, const QString& display,
                   std::function<void()> onSecondStart);
    ~SingleInstance() override;

    /// True when this process is the only one from now on, or when no bus is there to tell.
    /// Otherwise the other one has been told, and this one should end.
    bool claim();

public Q_SLOTS:
    Q_SCRIPTABLE void Open();

private:
    QDBusConnection bus_;
    QString name_;
    std::function<void()> onSecondStart_;
};

} // namespace brellowind::platform
