// SPDX-License-Identifier: MIT

#include "platform/linux/ScreenLock.h"

#include "platform/linux/BusCall.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <functional>
#include <utility>

namespace brellowind::platform {
namespace {

struct Saver {
    const char* interface; ///< also the bus name
    const char* path;
};

constexpr Saver savers[] = {
    {"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver"},
    {"org.gnome.ScreenSaver", "/org/gnome/ScreenSaver"},
    {"org.cinnamon.ScreenSaver", "/org/cinnamon/ScreenSaver"},
    {"org.mate.ScreenSaver", "/org/mate/ScreenSaver"},
    {"org.xfce.ScreenSaver", "/org/xfce/ScreenSaver"},
};

const auto bus = QStringLiteral("org.freedesktop.DBus");
const auto loginManager = QStringLiteral("org.freedesktop.login1");
const auto sessionInterface = QStringLiteral("org.freedesktop.login1.Session");
const auto propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
const auto lockedHint = QStringLiteral("LockedHint");

/// Calls `answered` with the reply, unless it is an error or `owner` is destroyed first.
template <typename Value>
void ask(const QDBusConnection& connection, const QDBusMessage& question, QObject* owner,
         std::function<void(const Value&, const QDBusMessage&)> answered) {
    auto* watcher = new QDBusPendingCallWatcher(connection.asyncCall(question), owner);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, owner,
                     [watcher, answered = std::move(answered)] {
                         const QDBusPendingReply<Value> reply = *watcher;
                         watcher->deleteLater();
                         if (reply.isValid())
                             answered(reply.value(), reply.reply());
                     });
}

} // namespace

ScreenLock::ScreenLock(QDBusConnection sessionBus, QDBusConnection systemBus)
    : sessionBus_(std::move(sessionBus)), systemBus_(std::move(systemBus)) {
    saverWatcher_.setConnection(sessionBus_);
    saverWatcher_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&saverWatcher_, &QDBusServiceWatcher::serviceUnregistered, this,
            &ScreenLock::forgetSaver);
    if (sessionBus_.isConnected())
        askSavers();
    if (systemBus_.isConnected())
        findSession();
}

Subscription ScreenLock::onChange(Observers::Callback callback) {
    return observers_->add(std::move(callback));
}

void ScreenLock::askSavers() {
    for (const auto& [name, path] : savers) {
        const auto interface = QString::fromLatin1(name);
        sessionBus_.connect(QString(), QString(), interface, QStringLiteral("ActiveChanged"), this,
                            SLOT(activeChanged(bool, QDBusMessage)));
        ask<bool>(sessionBus_,
                  methodCall(interface, QString::fromLatin1(path), interface, "GetActive"), this,
                  [this](bool active, const QDBusMessage& reply) {
                      setSaverActive(reply.service(), active);
                  });
    }
}

void ScreenLock::activeChanged(bool active, const QDBusMessage& message) {
    setSaverActive(message.service(), active);
}

void ScreenLock::setSaverActive(const QString& saver, bool active) {
    if (!active) {
        forgetSaver(saver);
        return;
    }
    watchSaver(saver);
    announcing([&] { activeSavers_.insert(saver); });
}

/// The screen saver may have exited before the watch begins.
void ScreenLock::watchSaver(const QString& saver) {
    if (activeSavers_.contains(saver))
        return;
    saverWatcher_.addWatchedService(saver);
    ask<bool>(
        sessionBus_,
        methodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus, "NameHasOwner", {saver}),
        this, [this, saver](bool lives, const QDBusMessage&) {
            if (!lives)
                forgetSaver(saver);
        });
}

void ScreenLock::forgetSaver(const QString& saver) {
    saverWatcher_.removeWatchedService(saver);
    announcing([&] { activeSavers_.remove(saver); });
}

/// Finds the object path of this process's session, or of the user's display. Its signals come from
/// that path only.
void ScreenLock::findSession() {
    ask<QDBusVariant>(
        systemBus_,
        methodCall(loginManager, QStringLiteral("/org/freedesktop/login1/session/auto"),
                   propertiesInterface, "Get", {sessionInterface, QStringLiteral("Id")}),
        this, [this](const QDBusVariant& id, const QDBusMessage&) {
            ask<QDBusObjectPath>(systemBus_,
                                 methodCall(loginManager, QStringLiteral("/org/freedesktop/login1"),
                                            QStringLiteral("org.freedesktop.login1.Manager"),
                                            "GetSession", {id.variant()}),
                                 this, [this](const QDBusObjectPath& session, const QDBusMessage&) {
                                     watchSession(session.path());
                                 });
        });
}

/// Observes `LockedHint`, which is set by the screen locker. A `Lock` signal is only a request.
void ScreenLock::watchSession(const QString& path) {
    systemBus_.connect(loginManager, path, propertiesInterface, QStringLiteral("PropertiesChanged"),
                       this, SLOT(sessionChanged(QString, QVariantMap)));
    systemBus_.connect(loginManager, path, sessionInterface, QStringLiteral("Unlock"), this,
                       SLOT(sessionUnlocked()));
    ask<QDBusVariant>(
        systemBus_,
        methodCall(loginManager, path, propertiesInterface, "Get", {sessionInterface, lockedHint}),
        this, [this](const QDBusVariant& locked, const QDBusMessage&) {
            setSessionLocked(locked.variant().toBool());
        });
}

void ScreenLock::sessionChanged(const QString& interface, const QVariantMap& changed) {
    if (interface == sessionInterface && changed.contains(lockedHint))
        setSessionLocked(changed.value(lockedHint).toBool());
}

void ScreenLock::sessionUnlocked() {
    setSessionLocked(false);
}

void ScreenLock::setSessionLocked(bool locked) {
    announcing([&] { sessionLocked_ = locked; });
}

template <typename Change>
void ScreenLock::announcing(Change change) {
    const bool before = isLocked();
    change();
    if (isLocked() != before)
        observers_->notify();
}

} // namespace brellowind::platform
