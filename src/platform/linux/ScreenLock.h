// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Observers.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QSet>
#include <memory>

namespace brellowind::platform {

/// Whether the session is locked or a screen saver is active. Observes the desktops' screen savers
/// on the session bus and the login manager on the system bus; all of them are optional. A screen
/// saver that exits counts as inactive.
class ScreenLock final : public QObject {
    Q_OBJECT

public:
    /// Does not block: the initial state arrives a moment later. Either bus may be missing.
    ScreenLock(QDBusConnection sessionBus, QDBusConnection systemBus);

    bool isLocked() const { return !activeSavers_.isEmpty() || sessionLocked_; }

    /// Calls `callback` after each change of `isLocked`.
    Subscription onChange(Observers::Callback callback);

private:
    void askSavers();
    void setSaverActive(const QString& saver, bool active);
    void watchSaver(const QString& saver);
    void forgetSaver(const QString& saver);

    void findSession();
    void watchSession(const QString& path);
    void setSessionLocked(bool locked);

    template <typename Change>
    void announcing(Change change);

    Q_SLOT void activeChanged(bool active, const QDBusMessage& message);
    Q_SLOT void sessionChanged(const QString& interface, const QVariantMap& changed);
    Q_SLOT void sessionUnlocked();

    QDBusConnection sessionBus_;
    QDBusConnection systemBus_;
    QDBusServiceWatcher saverWatcher_;
    QSet<QString> activeSavers_; ///< unique bus names
    bool sessionLocked_ = false;
    std::shared_ptr<Observers> observers_ = std::make_shared<Observers>();
};

} // namespace brellowind::platform
