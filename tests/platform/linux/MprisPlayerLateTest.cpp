// SPDX-License-Identifier: MIT

#include "platform/linux/MprisSession.h"

#include "platform/qt/QtMainLoop.h"
#include "session/EventLoop.h"
#include "session/LoopWatch.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace brellowind::platform {
namespace {

using std::chrono::milliseconds;
using test::PlayerProcess;
using test::waitUntil;
using testing::ElementsAre;
using testing::IsEmpty;

const auto doesNotAnswer = "the player does not answer";

class MprisPlayerLate : public MprisSession {
protected:
    MprisPlayerLate() {
        startPlayer("Song");
        EXPECT_TRUE(readsSoon(mpris, hasTitle("Song")));
    }

    void startPlayer(const char* title) {
        player.reset();
        player = std::make_unique<PlayerProcess>(bus.connection());
        player->setTrack(song(title));
    }

    /// Starts a reading that the player does not answer.
    void beginWhileItHangs(Answer& answer) {
        player->hang();
        begin(mpris, answer);
        passPatience();
        test::runFor(milliseconds(50));
        ASSERT_EQ(answer, std::nullopt);
    }

    std::unique_ptr<PlayerProcess> player;
    MprisPlayer mpris = adapter();
};

TEST_F(MprisPlayerLate, IsOneLineUntilItHasAnswered) {
    Answer answer;
    beginWhileItHangs(answer);
    passPatience();
    passPatience();
    EXPECT_THAT(log, ElementsAre(line(doesNotAnswer)));
    player->recover();
    EXPECT_TRUE(ends(answer));
    EXPECT_THAT(answer, isSnapshot(snapshotOf("Song")));
    beginWhileItHangs(answer);
    EXPECT_THAT(log, ElementsAre(line(doesNotAnswer), line(doesNotAnswer)));
    player->recover();
}

TEST_F(MprisPlayerLate, IsAskedOnceUntilItHasAnswered) {
    const unsigned before = player->requests();
    Answer answer;
    beginWhileItHangs(answer);
    passPatience();
    Answer second;
    begin(mpris, second);
    player->recover();
    EXPECT_TRUE(ends(answer) && ends(second));
    EXPECT_EQ(player->requests() - before, 1U);
}

TEST_F(MprisPlayerLate, GetsNoCommandThatItWouldObeyLater) {
    Answer answer;
    beginWhileItHangs(answer);
    playPause(mpris);
    playPause(mpris);
    EXPECT_THAT(log, ElementsAre(line(doesNotAnswer), line(doesNotAnswer), line(doesNotAnswer)));
    player->recover();
    EXPECT_EQ(player->status(), QStringLiteral("Stopped"));
}

TEST_F(MprisPlayerLate, DoesNotRunOnceItIsKilled) {
    Answer answer;
    beginWhileItHangs(answer);
    player->kill();
    EXPECT_TRUE(ends(answer));
    EXPECT_THAT(answer, isNotRunning());
    EXPECT_THAT(log, ElementsAre(line(doesNotAnswer)));
    startPlayer("Again");
    EXPECT_TRUE(readsSoon(mpris, hasTitle("Again")));
}

TEST_F(MprisPlayerLate, IsReplacedByItsSuccessor) {
    player->hang();
    Answer answer;
    begin(mpris, answer);
    player->kill();
    startPlayer("Again"); // both changes are processed at once
    EXPECT_TRUE(ends(answer));
    EXPECT_TRUE(readsSoon(mpris, hasTitle("Again")));
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(MprisPlayerLate, EndsItsReadingWhenItDiesOfTheQuestion) {
    player->setAnswer("death");
    EXPECT_THAT(read(mpris), isNotRunning());
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(MprisPlayerLate, EndsItsReadingWhenItQuitsInTheMiddle) {
    player->setDelay(std::chrono::minutes(1));
    Answer answer;
    begin(mpris, answer);
    player->quit();
    EXPECT_TRUE(ends(answer));
    EXPECT_THAT(answer, isNotRunning());
    EXPECT_THAT(log, IsEmpty());
}

struct Slowness {
    milliseconds delay;
    std::vector<std::string> lines;
};

class MprisPlayerSlow : public MprisPlayerLate, public testing::WithParamInterface<Slowness> {};

TEST_P(MprisPlayerSlow, IsReadAsItIsWhenItAnswers) {
    QtMainLoop realTime;
    MprisPlayer inRealTime(bus.connection(), {"spotify"}, realTime, *this);
    player->setStatus("Playing");
    player->setPosition(10);
    player->setDelay(GetParam().delay);
    test::LoopWatch watch;
    const auto answer = read(inRealTime);
    ASSERT_THAT(answer, hasTitle("Song"));
    const auto& snapshot = std::get<Player::Snapshot>(answer.value());
    EXPECT_TRUE(snapshot.isPlaying);
    EXPECT_GE(snapshot.positionSec, 10 + std::chrono::duration<double>(GetParam().delay).count());
    EXPECT_LT(watch.longestTurn(), test::LoopWatch::bearable());
    EXPECT_EQ(log, GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(
    Delays, MprisPlayerSlow,
    testing::Values(Slowness{milliseconds(260), {}},
                    Slowness{milliseconds(3000),
                             {"Spotify AppleScript error: the player does not answer"}}),
    [](const auto& parameter) { return std::to_string(parameter.param.delay.count()); });

/// A bus with an activatable player that leaves a mark.
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

class MprisPlayerThatCanBeStarted : StartablePlayer, public MprisSession {
protected:
    using StartablePlayer::wasStarted;
};

TEST_F(MprisPlayerThatCanBeStarted, IsNotStartedByReadingsNorByCommandsNorAfterItsDeath) {
    auto mpris = adapter();
    EXPECT_THAT(read(mpris), isNotRunning());
    playPause(mpris);
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    EXPECT_TRUE(readsSoon(mpris, hasTitle("Song")));
    player.hang();
    Answer answer;
    begin(mpris, answer);
    player.kill();
    EXPECT_TRUE(ends(answer));
    test::runFor(milliseconds(300));
    EXPECT_FALSE(wasStarted());
}

TEST_F(MprisPlayerThatCanBeStarted, IsStartedByOtherPeoplesCalls) {
    bus.connection().call(
        QDBusMessage::createMethodCall(QStringLiteral("org.mpris.MediaPlayer2.spotify"),
                                       QStringLiteral("/"), QString(), QStringLiteral("Ping")));
    EXPECT_TRUE(waitUntil([&] { return wasStarted(); })); // else the test above could not fail
}

} // namespace
} // namespace brellowind::platform
