#include "platform/linux/MprisSession.h"
#include "session/EventLoop.h"

#include <gmock/gmock.h>

namespace brellowind::platform {
namespace {

using test::PlayerProcess;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

class MprisPlayerNames : public MprisSession {
protected:
    /// The first reading that succeeds: of a player that has gone the bus may tell the test before
    /// it tells the adapter, whose one reading in between fails.
    static std::optional<std::string> nextReading(MprisPlayer& reads) {
        std::optional<std::string> text;
        test::waitUntil([&] { return (text = reads.execute(readOut).text).has_value(); });
        return text;
    }
};

TEST_F(MprisPlayerNames, WithoutAPlayerNothingRunsAndAReadingIsEmpty) {
    auto reads = reader();
    EXPECT_THAT(reads.bundleIdentifiers(), IsEmpty());
    const auto outcome = reads.execute(readOut);
    EXPECT_THAT(outcome.text, Optional(std::string()));
    EXPECT_EQ(outcome.error, std::nullopt);
}

TEST_F(MprisPlayerNames, WithoutAPlayerTheToggleIsAnError) {
    const auto outcome = reader().execute(toggle);
    EXPECT_EQ(outcome.text, std::nullopt);
    EXPECT_TRUE(outcome.error.has_value());
}

TEST_F(MprisPlayerNames, APlayerThatQuitsRunsNoLonger) {
    PlayerProcess player(bus.connection());
    auto reads = reader();
    EXPECT_THAT(reads.bundleIdentifiers(), ElementsAre("com.spotify.client"));
    player.quit();
    EXPECT_TRUE(test::waitUntil([&] { return reads.bundleIdentifiers().empty(); }));
    EXPECT_THAT(reads.execute(readOut).text, Optional(std::string()));
}

TEST_F(MprisPlayerNames, AnInstanceCounts) {
    PlayerProcess player(bus.connection(), QStringLiteral("spotify.instance123"));
    player.setTrack(song("Instance"));
    auto reads = reader();
    EXPECT_THAT(reads.bundleIdentifiers(), ElementsAre("com.spotify.client"));
    EXPECT_THAT(reads.execute(readOut).text, Optional(recordOf("Instance")));
}

TEST_F(MprisPlayerNames, ThePlainNameGoesBeforeInstancesWhicheverCameFirst) {
    PlayerProcess early(bus.connection(), QStringLiteral("spotify.instance1"));
    early.setTrack(song("Early instance"));
    PlayerProcess plain(bus.connection());
    plain.setTrack(song("Plain"));
    PlayerProcess late(bus.connection(), QStringLiteral("spotify.instance2"));
    late.setTrack(song("Late instance"));
    auto reads = reader();
    EXPECT_THAT(reads.execute(readOut).text, Optional(recordOf("Plain")));
    plain.quit();
    EXPECT_THAT(nextReading(reads), Optional(testing::HasSubstr("instance")));
}

TEST_F(MprisPlayerNames, OfSeveralInstancesTheSameOneIsReadWhoeverComesAndGoes) {
    auto reads = reader();
    std::vector<std::unique_ptr<PlayerProcess>> players;
    for (const char* instance : {"1", "5", "3", "9", "7"}) {
        auto& player = players.emplace_back(std::make_unique<PlayerProcess>(
            bus.connection(), QStringLiteral("spotify.instance") + QLatin1String(instance)));
        player->setTrack(song(instance));
        EXPECT_THAT(reads.execute(readOut).text, Optional(recordOf("1"))) << instance;
    }
    players.erase(players.begin());
    EXPECT_THAT(nextReading(reads), Optional(recordOf("3")));
}

class MprisPlayerOthers : public MprisSession, public testing::WithParamInterface<const char*> {};

TEST_P(MprisPlayerOthers, NeverCount) {
    PlayerProcess player(bus.connection(), QString::fromLatin1(GetParam()));
    player.setTrack(song("Other"));
    auto reads = reader();
    EXPECT_THAT(reads.bundleIdentifiers(), IsEmpty());
    EXPECT_THAT(reads.execute(readOut).text, Optional(std::string()));
    EXPECT_TRUE(reads.execute(toggle).error.has_value());
    EXPECT_EQ(player.requests(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Names, MprisPlayerOthers,
                         testing::Values("vlc", "playerctld", "spotifyd", "spotify2", "Spotify",
                                         "spotify_instance1", "spotify.instanc", "spotify.other",
                                         "my.spotify", "vlc.instance7"));

TEST_F(MprisPlayerNames, FurtherConfiguredPlayersCountAndTheFirstConfiguredGoesFirst) {
    PlayerProcess other(bus.connection(), QStringLiteral("other-player"));
    other.setTrack(song("Other"));
    auto reads = reader({"spotify", "other-player"});
    EXPECT_THAT(reads.bundleIdentifiers(), ElementsAre("com.spotify.client"));
    EXPECT_THAT(reads.execute(readOut).text, Optional(recordOf("Other")));
    PlayerProcess first(bus.connection());
    first.setTrack(song("First"));
    EXPECT_EQ(reads.bundleIdentifiers().size(), 2U);
    EXPECT_THAT(reads.execute(readOut).text, Optional(recordOf("First")));
}

} // namespace
} // namespace brellowind::platform
