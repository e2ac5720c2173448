// SPDX-License-Identifier: MIT

#include "platform/linux/MprisSession.h"

#include "session/EventLoop.h"

namespace brellowind::platform {
namespace {

using std::chrono::milliseconds;
using test::PlayerProcess;
using testing::ElementsAre;

/// Two players, the first of them preferred.
class MprisPlayerSeveral : public MprisSession {
protected:
    MprisPlayerSeveral() {
        first.setTrack(song("First"));
        second.setTrack(song("Second"));
    }

    static double positionOf(const Answer& answer) {
        return std::get<Player::Snapshot>(answer.value()).positionSec;
    }

    PlayerProcess first{bus.connection(), QStringLiteral("first")};
    PlayerProcess second{bus.connection(), QStringLiteral("second")};
    MprisPlayer mpris = adapter({"first", "second"});
};

TEST_F(MprisPlayerSeveral, TheOneThatPlaysIsRead) {
    first.setStatus("Playing");
    EXPECT_THAT(read(mpris), hasTitle("First"));
    first.setStatus("Paused");
    second.setStatus("Playing");
    EXPECT_THAT(read(mpris), hasTitle("Second"));
    second.setStatus("Paused");
    EXPECT_THAT(read(mpris), hasTitle("First"));
}

TEST_F(MprisPlayerSeveral, TheOneThatHasATrackIsRead) {
    first.setTrack({});
    EXPECT_THAT(read(mpris), hasTitle("Second"));
    second.setTrack({});
    EXPECT_THAT(read(mpris), isNotRunning());
}

TEST_F(MprisPlayerSeveral, TheOneThatCanBeReadIsRead) {
    first.setAnswer("error");
    EXPECT_THAT(read(mpris), hasTitle("Second"));
    second.setAnswer("text");
    EXPECT_THAT(read(mpris), isUnreadable());
    EXPECT_EQ(log.size(), 2U);
}

TEST_F(MprisPlayerSeveral, TheCommandGoesToTheOneThatWasReadLast) {
    second.setStatus("Playing");
    read(mpris);
    playPause(mpris);
    EXPECT_EQ(second.status(), QStringLiteral("Paused"));
    playPause(mpris);
    EXPECT_EQ(second.status(), QStringLiteral("Playing"));
    EXPECT_EQ(first.status(), QStringLiteral("Stopped"));
}

TEST_F(MprisPlayerSeveral, TheCommandGoesToThePreferredOneBeforeAnyReading) {
    playPause(mpris);
    EXPECT_EQ(first.status(), QStringLiteral("Playing"));
    EXPECT_EQ(second.status(), QStringLiteral("Stopped"));
}

TEST_F(MprisPlayerSeveral, TheCommandGoesToThePreferredOneOnceTheOneThatWasReadHasQuit) {
    second.setStatus("Playing");
    read(mpris);
    second.quit();
    read(mpris);
    playPause(mpris);
    EXPECT_EQ(first.status(), QStringLiteral("Playing"));
}

TEST_F(MprisPlayerSeveral, OneThatHangsDelaysTheOneThatPlaysOnceOnly) {
    second.setStatus("Playing");
    first.hang();
    Answer answer;
    begin(mpris, answer);
    test::runFor(milliseconds(100));
    EXPECT_EQ(answer, std::nullopt) << "the preferred one may play";
    passPatience();
    EXPECT_TRUE(ends(answer));
    EXPECT_THAT(answer, hasTitle("Second"));
    EXPECT_THAT(read(mpris), hasTitle("Second"));
    EXPECT_THAT(read(mpris), hasTitle("Second"));
    EXPECT_THAT(log, ElementsAre(line("the player does not answer")));
    first.recover();
    first.setStatus("Playing");
    EXPECT_TRUE(readsSoon(mpris, hasTitle("First")));
}

TEST_F(MprisPlayerSeveral, OneThatHangsButPlayedIsWaitedForWhileTheOtherRests) {
    first.setStatus("Playing");
    EXPECT_THAT(read(mpris), hasTitle("First"));
    first.hang();
    Answer answer;
    begin(mpris, answer);
    test::runFor(milliseconds(100));
    passPatience();
    test::runFor(milliseconds(100));
    EXPECT_EQ(answer, std::nullopt);
    first.recover();
    EXPECT_TRUE(ends(answer));
    EXPECT_THAT(answer, hasTitle("First"));
}

TEST_F(MprisPlayerSeveral, WhileOneThatPlayedHangsTheOtherIsReadOnceItPlays) {
    first.setStatus("Playing");
    EXPECT_THAT(read(mpris), hasTitle("First"));
    first.hang();
    Answer answer;
    begin(mpris, answer);
    passPatience();
    test::runFor(milliseconds(100));
    ASSERT_EQ(answer, std::nullopt);
    second.setStatus("Playing");
    passPatience();
    EXPECT_TRUE(ends(answer));
    EXPECT_THAT(answer, hasTitle("Second"));
    first.recover();
}

TEST_F(MprisPlayerSeveral, OneThatStartsWhileAnotherHangsIsRead) {
    second.quit();
    first.setStatus("Playing");
    EXPECT_TRUE(readsSoon(mpris, hasTitle("First")));
    first.hang();
    Answer answer;
    begin(mpris, answer);
    passPatience();
    PlayerProcess again(bus.connection(), QStringLiteral("second"));
    again.setTrack(song("Again"));
    again.setStatus("Playing");
    EXPECT_TRUE(test::waitUntil([&] {
        passPatience(); // in case it was asked before it played
        return answer.has_value();
    }));
    EXPECT_THAT(answer, hasTitle("Again"));
    first.recover();
}

TEST_F(MprisPlayerSeveral, ThePositionIsThatOfTheEndOfTheReading) {
    first.setDelay(milliseconds(150));
    second.setStatus("Playing");
    second.setPosition(10);
    read(mpris);
    const auto answer = read(mpris);
    EXPECT_THAT(answer, hasTitle("Second"));
    EXPECT_GE(positionOf(answer), 10.25); // the delays are timed coarsely
}

TEST_F(MprisPlayerSeveral, APausedPositionStays) {
    first.setTrack({});
    first.setDelay(milliseconds(100));
    second.setStatus("Paused");
    second.setPosition(10);
    EXPECT_EQ(positionOf(read(mpris)), 10);
}

} // namespace
} // namespace brellowind::platform
