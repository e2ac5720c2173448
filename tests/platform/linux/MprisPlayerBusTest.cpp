// SPDX-License-Identifier: MIT

#include "platform/linux/MprisSession.h"

#include "session/EventLoop.h"

namespace brellowind::platform {
namespace {

using test::PlayerProcess;
using testing::ElementsAre;
using testing::IsEmpty;

using MprisPlayerBus = MprisSession;

const auto noBus = "there is no session bus";

TEST_F(MprisPlayerBus, ThatIsMissingIsOneLineAndNoPlayer) {
    MprisPlayer mpris(QDBusConnection(QStringLiteral("no such bus")), {"spotify"}, mainLoop, *this);
    EXPECT_THAT(log, ElementsAre(line(noBus)));
    EXPECT_THAT(read(mpris), isNotRunning());
    EXPECT_THAT(read(mpris), isNotRunning());
    EXPECT_THAT(log, ElementsAre(line(noBus)));
    playPause(mpris);
    EXPECT_THAT(log, ElementsAre(line(noBus), line("the player is not running")));
}

TEST_F(MprisPlayerBus, ThatGoesAwayIsOneLineAndNoPlayer) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    auto mpris = adapter();
    EXPECT_THAT(read(mpris), hasTitle("Song"));
    bus.end();
    EXPECT_THAT(read(mpris), isNotRunning());
    EXPECT_THAT(read(mpris), isNotRunning());
    EXPECT_THAT(log, ElementsAre(line(noBus)));
}

TEST_F(MprisPlayerBus, ThatGoesAwayEndsTheReadingOfAPlayerThatHangs) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    auto mpris = adapter();
    read(mpris);
    player.hang();
    Answer answer;
    begin(mpris, answer);
    bus.end();
    EXPECT_TRUE(ends(answer));
    EXPECT_THAT(answer, isNotRunning());
    EXPECT_THAT(log, ElementsAre(line(noBus)));
    player.recover();
}

TEST_F(MprisPlayerBus, ThatGoesAwayBeforeThePlayersAreKnownEndsTheReading) {
    auto mpris = adapter();
    Answer answer;
    begin(mpris, answer);
    bus.end();
    EXPECT_TRUE(ends(answer));
    EXPECT_THAT(answer, isNotRunning());
}

TEST_F(MprisPlayerBus, AnAdapterMayEndBeforeItsTasks) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    Answer early, late;
    bool hasEnded = false;
    {
        auto mpris = adapter();
        begin(mpris, early);
    }
    {
        auto mpris = adapter();
        read(mpris);
        player.hang();
        begin(mpris, late);
        const auto command = [](Task<void> task, bool& ended) -> Task<void> {
            co_await std::move(task);
            ended = true;
        };
        tasks.start(command(mpris.playPause(), hasEnded));
        mainLoop.runTurns();
    }
    player.recover();
    passPatience();
    EXPECT_TRUE(test::waitUntil([&] { return hasEnded; }));
    EXPECT_EQ(player.requests(), 3U);
    EXPECT_EQ(early, std::nullopt);
    EXPECT_EQ(late, std::nullopt);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(MprisPlayerBus, AnAdapterMayOutliveItsTasks) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    auto mpris = adapter();
    read(mpris);
    player.hang();
    {
        Answer answer;
        TaskRunner runner(mainLoop);
        const auto reading = [](Player& read) -> Task<void> { co_await read.read(); };
        const auto command = [](Player& toggle) -> Task<void> { co_await toggle.playPause(); };
        runner.start(reading(mpris));
        runner.start(command(mpris));
        mainLoop.runTurns();
        EXPECT_EQ(runner.running(), 2U);
    }
    player.recover();
    EXPECT_THAT(read(mpris), hasTitle("Song"));
    player.requests();
    EXPECT_THAT(read(mpris), hasTitle("Song"));
}

TEST_F(MprisPlayerBus, AReadingCanBeCancelled) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    auto mpris = adapter();
    read(mpris);
    player.hang();
    const auto reading = [](Player& read) -> Task<void> { co_await read.read(); };
    auto handle = tasks.start(reading(mpris));
    mainLoop.runTurns();
    ASSERT_EQ(tasks.running(), 1U);
    handle.cancel();
    mainLoop.runTurns();
    EXPECT_EQ(tasks.running(), 0U);
    player.recover();
    EXPECT_THAT(read(mpris), hasTitle("Song"));
}

} // namespace
} // namespace brellowind::platform
