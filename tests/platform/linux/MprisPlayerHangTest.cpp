#include "platform/linux/MprisSession.h"

#include "session/EventLoop.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace brellowind::platform {
namespace {

using test::PlayerProcess;
using test::waitUntil;
using testing::HasSubstr;
using testing::Optional;

/// What a bus that starts now knows: how to start the player, which leaves a mark.
class StartablePlayer {
protected:
    StartablePlayer() {
        const QString services = folder_.filePath(QStringLiteral("dbus-1/services"));
        EXPECT_TRUE(QDir().mkpath(services));
        QFile file(services + QStringLiteral("/player.service"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[D-BUS Service]\nName=org.mpris.MediaPlayer2.spotify\n"
                   "Exec=/bin/sh -c \"touch '" +
                   mark_.toLocal8Bit() + "'; exit 1\"\n");
        qputenv("XDG_DATA_HOME", folder_.path().toLocal8Bit());
    }
    ~StartablePlayer() { qputenv("XDG_DATA_HOME", before_); }

    bool wasStarted() const { return QFile::exists(mark_); }

private:
    QTemporaryDir folder_;
    QString mark_ = folder_.filePath(QStringLiteral("mark"));
    QByteArray before_ = qgetenv("XDG_DATA_HOME");
};

class MprisPlayerHang : public MprisSession {
protected:
    /// Reads until `record` comes back.
    static bool readsAgain(MprisPlayer& reads, const std::string& record) {
        return waitUntil([&] { return reads.execute(readOut).text == record; });
    }
};

class MprisPlayerThatCanBeStarted : StartablePlayer, public MprisPlayerHang {
protected:
    using StartablePlayer::wasStarted;
};

TEST_F(MprisPlayerThatCanBeStarted, IsNotStartedByReadingsNorAfterItsDeath) {
    auto reads = reader();
    EXPECT_THAT(reads.execute(readOut).text, Optional(std::string()));
    PlayerProcess player(bus.connection());
    player.hang();
    ASSERT_TRUE(reads.execute(readOut).error.has_value());
    player.kill();
    EXPECT_THAT(reads.execute(readOut).text, Optional(std::string()));
    test::runFor(std::chrono::milliseconds(300));
    EXPECT_FALSE(wasStarted());
}

TEST_F(MprisPlayerThatCanBeStarted, IsStartedByOtherPeoplesCalls) {
    bus.connection().call(
        QDBusMessage::createMethodCall(QStringLiteral("org.mpris.MediaPlayer2.spotify"),
                                       QStringLiteral("/"), QString(), QStringLiteral("Ping")));
    EXPECT_TRUE(waitUntil([&] { return wasStarted(); })); // or else the test above could not fail
}

TEST_F(MprisPlayerHang, CostsOneWaitAndThenEveryExecutionFailsAtOnce) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    auto reads = reader();
    const unsigned before = player.requests();
    player.hang();
    EXPECT_THAT(reads.execute(readOut).error, Optional(HasSubstr("DBus.Error.Timeout")));
    for (int i = 0; i < 20; ++i) {
        EXPECT_THAT(reads.execute(readOut).error, Optional(HasSubstr("the player hangs")));
        EXPECT_THAT(reads.execute(toggle).error, Optional(HasSubstr("the player hangs")));
    }
    player.recover();
    EXPECT_EQ(player.requests() - before, 1U); // only the first reading was ever sent
}

TEST_F(MprisPlayerHang, LeavesThePlayerRunning) {
    PlayerProcess player(bus.connection());
    auto reads = reader();
    player.hang();
    reads.execute(readOut);
    EXPECT_EQ(reads.bundleIdentifiers().size(), 1U);
    player.recover();
}

TEST_F(MprisPlayerHang, EndsWithThePlayersFirstAnswer) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    auto reads = reader();
    player.hang();
    ASSERT_TRUE(reads.execute(readOut).error.has_value());
    player.recover();
    EXPECT_TRUE(readsAgain(reads, recordOf("Song")));
    player.hang();
    EXPECT_THAT(reads.execute(readOut).error, Optional(HasSubstr("DBus.Error.Timeout")));
    EXPECT_THAT(reads.execute(readOut).error, Optional(HasSubstr("the player hangs")));
    player.recover();
    EXPECT_TRUE(readsAgain(reads, recordOf("Song")));
}

TEST_F(MprisPlayerHang, IsNoticedByTheToggleToo) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    auto reads = reader();
    player.hang();
    EXPECT_THAT(reads.execute(toggle).error, Optional(HasSubstr("DBus.Error.Timeout")));
    EXPECT_THAT(reads.execute(readOut).error, Optional(HasSubstr("the player hangs")));
    player.recover();
    EXPECT_TRUE(waitUntil([&] { return reads.execute(readOut).text.has_value(); }));
}

TEST_F(MprisPlayerHang, EndsWhenThePlayerIsKilledAndStartedAgain) {
    auto player = std::make_unique<PlayerProcess>(bus.connection());
    auto reads = reader();
    player->hang();
    ASSERT_TRUE(reads.execute(readOut).error.has_value());
    player->kill();
    EXPECT_TRUE(readsAgain(reads, "")); // nobody plays
    player = std::make_unique<PlayerProcess>(bus.connection());
    player->setTrack(song("Again"));
    EXPECT_TRUE(readsAgain(reads, recordOf("Again")));
}

TEST_F(MprisPlayerHang, EndsWhenThePlayerIsReplacedBeforeAnybodyLooks) {
    auto player = std::make_unique<PlayerProcess>(bus.connection());
    auto reads = reader();
    player->hang();
    ASSERT_TRUE(reads.execute(readOut).error.has_value());
    player->kill();
    player = std::make_unique<PlayerProcess>(bus.connection());
    player->setTrack(song("Again"));
    EXPECT_TRUE(readsAgain(reads, recordOf("Again")));
}

TEST_F(MprisPlayerHang, MayOutliveTheReader) {
    PlayerProcess player(bus.connection());
    player.hang();
    {
        auto reads = reader();
        ASSERT_TRUE(reads.execute(readOut).error.has_value());
    }
    player.recover();
    player.requests(); // by now the ping is answered as well
    test::runFor(std::chrono::milliseconds(50));
    auto reads = reader();
    EXPECT_TRUE(reads.execute(readOut).text.has_value());
}

TEST_F(MprisPlayerHang, AReaderMayComeAndGoManyTimes) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    for (int i = 0; i < 5; ++i) {
        auto reads = reader();
        player.hang();
        ASSERT_TRUE(reads.execute(readOut).error.has_value());
        player.recover();
        ASSERT_TRUE(readsAgain(reads, recordOf("Song")));
    }
}

TEST_F(MprisPlayerHang, ABusThatGoesAwayEndsReadingsWithAnError) {
    PlayerProcess player(bus.connection());
    auto reads = reader();
    ASSERT_TRUE(reads.execute(readOut).text.has_value());
    bus.end();
    EXPECT_THAT(reads.bundleIdentifiers(), testing::IsEmpty());
    for (int i = 0; i < 20; ++i) {
        const auto outcome = reads.execute(readOut);
        EXPECT_EQ(outcome.text, std::nullopt);
        EXPECT_THAT(outcome.error, Optional(HasSubstr("DBus.Error.Disconnected")));
        EXPECT_TRUE(reads.execute(toggle).error.has_value());
    }
}

TEST_F(MprisPlayerHang, ABusThatGoesAwayWhileThePlayerHangsIsSurvived) {
    PlayerProcess player(bus.connection());
    auto reads = reader();
    player.hang();
    ASSERT_TRUE(reads.execute(readOut).error.has_value());
    bus.end();
    EXPECT_TRUE(waitUntil([&] {
        const auto error = reads.execute(readOut).error;
        return error && error->find("Disconnected") != std::string::npos;
    }));
    EXPECT_THAT(reads.bundleIdentifiers(), testing::IsEmpty());
    player.recover();
}

} // namespace
} // namespace brellowind::platform
