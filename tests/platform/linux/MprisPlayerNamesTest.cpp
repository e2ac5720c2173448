// SPDX-License-Identifier: MIT

#include "platform/linux/MprisSession.h"

#include "session/EventLoop.h"

namespace brellowind::platform {
namespace {

using test::PlayerProcess;
using testing::ElementsAre;

using MprisPlayerNames = MprisSession;

TEST_F(MprisPlayerNames, WithoutAPlayerNothingRuns) {
    auto mpris = adapter();
    EXPECT_THAT(read(mpris), isNotRunning());
    EXPECT_THAT(log, testing::IsEmpty());
}

TEST_F(MprisPlayerNames, WithoutAPlayerACommandIsALineEachTime) {
    auto mpris = adapter();
    playPause(mpris);
    playPause(mpris);
    EXPECT_THAT(log,
                ElementsAre(line("the player is not running"), line("the player is not running")));
}

TEST_F(MprisPlayerNames, APlayerThatStartsIsRead) {
    auto mpris = adapter();
    EXPECT_THAT(read(mpris), isNotRunning());
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    EXPECT_TRUE(readsSoon(mpris, hasTitle("Song")));
}

TEST_F(MprisPlayerNames, APlayerThatQuitsRunsNoLonger) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    auto mpris = adapter();
    EXPECT_THAT(read(mpris), hasTitle("Song"));
    player.quit();
    EXPECT_TRUE(readsSoon(mpris, isNotRunning()));
    EXPECT_THAT(log, testing::IsEmpty());
}

TEST_F(MprisPlayerNames, AnInstanceCounts) {
    auto mpris = adapter();
    PlayerProcess player(bus.connection(), QStringLiteral("spotify.instance123"));
    player.setTrack(song("Instance"));
    EXPECT_TRUE(readsSoon(mpris, hasTitle("Instance")));
    auto later = adapter();
    EXPECT_THAT(read(later), hasTitle("Instance"));
}

TEST_F(MprisPlayerNames, ThePlainNameGoesBeforeInstancesWhicheverCameFirst) {
    PlayerProcess early(bus.connection(), QStringLiteral("spotify.instance1"));
    early.setTrack(song("Early instance"));
    PlayerProcess plain(bus.connection());
    plain.setTrack(song("Plain"));
    PlayerProcess late(bus.connection(), QStringLiteral("spotify.instance2"));
    late.setTrack(song("Late instance"));
    auto mpris = adapter();
    EXPECT_THAT(read(mpris), hasTitle("Plain"));
    plain.quit();
    EXPECT_TRUE(readsSoon(mpris, hasTitle("Early instance")));
}

TEST_F(MprisPlayerNames, OfSeveralInstancesTheSameOneIsReadWhoeverComesAndGoes) {
    auto mpris = adapter();
    std::vector<std::unique_ptr<PlayerProcess>> players;
    for (const char* instance : {"1", "5", "3", "9", "7"}) {
        auto& player = players.emplace_back(std::make_unique<PlayerProcess>(
            bus.connection(), QStringLiteral("spotify.instance") + QLatin1String(instance)));
        player->setTrack(song(instance));
        EXPECT_TRUE(readsSoon(mpris, hasTitle("1"))) << instance;
    }
    players.erase(players.begin());
    EXPECT_TRUE(readsSoon(mpris, hasTitle("3")));
}

TEST_F(MprisPlayerNames, FurtherConfiguredPlayersCountAndTheFirstConfiguredGoesFirst) {
    PlayerProcess other(bus.connection(), QStringLiteral("other-player"));
    other.setTrack(song("Other"));
    auto mpris = adapter({"spotify", "other-player"});
    EXPECT_THAT(read(mpris), hasTitle("Other"));
    PlayerProcess first(bus.connection());
    first.setTrack(song("First"));
    EXPECT_TRUE(readsSoon(mpris, hasTitle("First")));
}

class MprisPlayerOthers : public MprisSession, public testing::WithParamInterface<const char*> {};

TEST_P(MprisPlayerOthers, NeverCount) {
    PlayerProcess early(bus.connection(), QString::fromLatin1(GetParam()));
    early.setTrack(song("Other"));
    auto mpris = adapter();
    EXPECT_THAT(read(mpris), isNotRunning());
    early.quit();
    PlayerProcess late(bus.connection(), QString::fromLatin1(GetParam()));
    late.setTrack(song("Other"));
    EXPECT_THAT(read(mpris), isNotRunning());
    playPause(mpris);
    EXPECT_THAT(log, ElementsAre(line("the player is not running")));
    EXPECT_EQ(late.requests(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Names, MprisPlayerOthers,
                         testing::Values("vlc", "playerctld", "spotifyd", "spotify2", "Spotify",
                                         "spotify_instance1", "spotify.instanc", "spotify.other",
                                         "my.spotify", "vlc.instance7"));

} // namespace
} // namespace brellowind::platform
