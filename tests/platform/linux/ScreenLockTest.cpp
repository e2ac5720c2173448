// SPDX-License-Identifier: MIT

#include "platform/linux/ScreenLock.h"

#include "FakeLoginManager.h"
#include "session/Desktop.h"
#include "session/EventLoop.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <gtest/gtest.h>
#include <optional>

namespace brellowind::test {
namespace {

using std::chrono::milliseconds;

/// A screen saver with its own bus connection.
class SaverProcess {
public:
    explicit SaverProcess(const SessionBus& bus)
        : bus_(QDBusConnection::connectToBus(bus.address(), QStringLiteral("saver"))) {}
    SaverProcess(const SaverProcess&) = delete;
    SaverProcess& operator=(const SaverProcess&) = delete;
    ~SaverProcess() { QDBusConnection::disconnectFromBus(QStringLiteral("saver")); }

    void announce(const QString& interface, bool active) {
        auto signal = QDBusMessage::createSignal(QStringLiteral("/any/path"), interface,
                                                 QStringLiteral("ActiveChanged"));
        signal << active;
        EXPECT_TRUE(bus_.send(signal));
    }

    QDBusConnection& connection() { return bus_; }

private:
    QDBusConnection bus_;
};

/// A saver that is active from the start.
class ActiveSaver : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.cinnamon.ScreenSaver")

public Q_SLOTS:
    Q_SCRIPTABLE bool GetActive() const { return true; }
};

const auto gnome = QStringLiteral("org.gnome.ScreenSaver");

/// Uses one bus as session bus and as system bus.
class ScreenLock : public testing::Test {
protected:
    void watch() {
        lock.emplace(bus.connection(), bus.connection());
        subscription = lock->onChange([this] { ++changes; });
        // A round trip, after which the signal matches are installed.
        bus.connection().interface()->isServiceRegistered(QStringLiteral("any.name"));
    }

    bool becomes(bool locked) {
        return waitUntil([=, this] { return lock->isLocked() == locked; });
    }

    /// Lets the lock react to all that has been sent.
    void react() {
        for (const auto& connection : {saver->connection(), bus.connection()}) // round trips
            connection.interface()->isServiceRegistered(QStringLiteral("any.name"));
        runFor(milliseconds(50));
    }

    SessionBus bus;
    std::optional<SaverProcess> saver{std::in_place, bus};
    int changes = 0;
    std::optional<platform::ScreenLock> lock;
    Subscription subscription;
};

TEST_F(ScreenLock, IsOpenWhereNobodyTellsOfAnything) {
    watch();
    react();
    EXPECT_FALSE(lock->isLocked());
    EXPECT_EQ(changes, 0);
}

TEST_F(ScreenLock, IsOpenWithoutAnyBus) {
    lock.emplace(QDBusConnection(QStringLiteral("no bus")),
                 QDBusConnection(QStringLiteral("none")));
    runFor(milliseconds(50));
    EXPECT_FALSE(lock->isLocked());
}

class ScreenLockOfDesktop : public ScreenLock, public testing::WithParamInterface<const char*> {};

TEST_P(ScreenLockOfDesktop, IsLockedWhileTheScreenSaverIsActive) {
    watch();
    const auto interface = QString::fromLatin1(GetParam());
    saver->announce(interface, true);
    EXPECT_TRUE(becomes(true));
    EXPECT_EQ(changes, 1);
    saver->announce(interface, false);
    EXPECT_TRUE(becomes(false));
    EXPECT_EQ(changes, 2);
}

INSTANTIATE_TEST_SUITE_P(Savers, ScreenLockOfDesktop,
                         testing::Values("org.freedesktop.ScreenSaver", "org.gnome.ScreenSaver",
                                         "org.cinnamon.ScreenSaver", "org.mate.ScreenSaver",
                                         "org.xfce.ScreenSaver"));

TEST_F(ScreenLock, TellsOnlyOfChanges) {
    watch();
    saver->announce(gnome, true);
    saver->announce(gnome, true);
    ASSERT_TRUE(becomes(true));
    saver->announce(gnome, false);
    ASSERT_TRUE(becomes(false));
    EXPECT_EQ(changes, 2);
}

TEST_F(ScreenLock, OpensWhenTheScreenSaverDies) {
    watch();
    saver->announce(gnome, true);
    ASSERT_TRUE(becomes(true));
    saver.reset();
    EXPECT_TRUE(becomes(false));
}

TEST_F(ScreenLock, LearnsOfAScreenSaverThatIsActiveAlready) {
    ActiveSaver active;
    ASSERT_TRUE(saver->connection().registerObject(QStringLiteral("/org/cinnamon/ScreenSaver"),
                                                   &active,
                                                   QDBusConnection::ExportScriptableContents));
    ASSERT_TRUE(saver->connection().registerService(QStringLiteral("org.cinnamon.ScreenSaver")));
    watch();
    EXPECT_TRUE(becomes(true));
    saver->announce(QStringLiteral("org.cinnamon.ScreenSaver"), false);
    EXPECT_TRUE(becomes(false));
}

/// On a system with a login manager.
class ScreenLockOfSession : public ScreenLock {
protected:
    FakeLoginManager manager{saver->connection()};
};

TEST_F(ScreenLockOfSession, FollowsTheLockedHint) {
    watch();
    ASSERT_TRUE(waitUntil([this] { return manager.hintReadings() > 0; }));
    manager.setLockedHint(true);
    EXPECT_TRUE(becomes(true));
    manager.setLockedHint(false);
    EXPECT_TRUE(becomes(false));
    EXPECT_EQ(changes, 2);
}

TEST_F(ScreenLockOfSession, IsLockedFromTheStartWhereTheHintSaysSo) {
    manager.setLockedHint(true);
    watch();
    EXPECT_TRUE(becomes(true));
}

TEST_F(ScreenLockOfSession, OpensWhenTheSessionIsUnlocked) {
    manager.setLockedHint(true);
    watch();
    ASSERT_TRUE(becomes(true));
    manager.unlock();
    EXPECT_TRUE(becomes(false));
}

TEST_F(ScreenLockOfSession, IsLockedUntilBothTheSaverAndTheSessionAreOpen) {
    manager.setLockedHint(true);
    watch();
    ASSERT_TRUE(becomes(true));
    saver->announce(gnome, true);
    manager.setLockedHint(false);
    react();
    EXPECT_TRUE(lock->isLocked());
    EXPECT_EQ(changes, 1);
    saver->announce(gnome, false);
    EXPECT_TRUE(becomes(false));
}

TEST_F(ScreenLockOfSession, IgnoresOtherPropertiesAndOtherSessions) {
    watch();
    ASSERT_TRUE(waitUntil([this] { return manager.hintReadings() > 0; }));
    manager.announceChange(FakeLoginManager::sessionPath, QStringLiteral("IdleHint"), true);
    manager.announceChange(QStringLiteral("/org/freedesktop/login1/session/other"),
                           QStringLiteral("LockedHint"), true);
    react();
    EXPECT_FALSE(lock->isLocked());
}

} // namespace
} // namespace brellowind::test

#include "ScreenLockTest.moc"
