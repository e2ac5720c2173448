// SPDX-License-Identifier: MIT

#include "platform/linux/MprisSession.h"

#include "session/EventLoop.h"

namespace brellowind::platform {
namespace {

using test::PlayerProcess;
using testing::ElementsAre;
using testing::IsEmpty;

using MprisPlayerTest = MprisSession;

TEST_F(MprisPlayerTest, ReadsWhatThePlayerPlays) {
    PlayerProcess player(bus.connection());
    auto metadata = PlayerProcess::metadata(QStringLiteral("Größe | 日本 🎵"),
                                            QStringLiteral("A & B"), QStringLiteral("C"), 215499);
    metadata[QStringLiteral("mpris:artUrl")] = QStringLiteral("https://i.scdn.co/image/ab67");
    player.setTrack(metadata);
    player.setPosition(12.5);
    player.setStatus("Paused");
    auto mpris = adapter();
    EXPECT_THAT(read(mpris), isSnapshot({.track = Track("Größe | 日本 🎵", "A & B", "C", 215499,
                                                        "https://i.scdn.co/image/ab67"),
                                         .isPlaying = false,
                                         .positionSec = 12.5}));
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(MprisPlayerTest, OneReadingIsOneRequestToThePlayer) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    auto mpris = adapter();
    const unsigned before = player.requests();
    read(mpris);
    EXPECT_EQ(player.requests() - before, 1U);
    read(mpris);
    EXPECT_EQ(player.requests() - before, 2U);
}

TEST_F(MprisPlayerTest, AsksNobodyUnlessItReads) {
    PlayerProcess player(bus.connection());
    const unsigned before = player.requests();
    auto mpris = adapter();
    test::runFor(std::chrono::milliseconds(100));
    EXPECT_EQ(player.requests(), before);
}

TEST_F(MprisPlayerTest, APlayerWithoutATrackDoesNotRun) {
    PlayerProcess player(bus.connection());
    auto mpris = adapter();
    EXPECT_THAT(read(mpris), isNotRunning());
    player.setTrack(song("Song"));
    EXPECT_THAT(read(mpris), isSnapshot(snapshotOf("Song")));
    auto noTrack = song("Song");
    noTrack[QStringLiteral("mpris:trackid")] =
        QStringLiteral("/org/mpris/MediaPlayer2/TrackList/NoTrack");
    player.setTrack(noTrack);
    EXPECT_THAT(read(mpris), isNotRunning());
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(MprisPlayerTest, TogglesPlaybackInBothDirections) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    player.setStatus("Paused");
    auto mpris = adapter();
    const unsigned before = player.requests();
    playPause(mpris);
    EXPECT_EQ(player.requests() - before, 1U);
    EXPECT_EQ(player.status(), QStringLiteral("Playing"));
    playPause(mpris);
    EXPECT_EQ(player.status(), QStringLiteral("Paused"));
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(MprisPlayerTest, AnErrorOfACommandIsALineEachTime) {
    PlayerProcess player(bus.connection());
    player.setAnswer("error");
    auto mpris = adapter();
    playPause(mpris);
    playPause(mpris);
    const auto failed = line("org.freedesktop.DBus.Error.Failed: as the test says");
    EXPECT_THAT(log, ElementsAre(failed, failed));
}

TEST_F(MprisPlayerTest, AnErrorIsUnreadableAndOneLineUntilItChanges) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    auto mpris = adapter();
    const auto error = line("org.freedesktop.DBus.Error.Failed: as the test says");
    const auto wrongType = line("the player's answer is of the wrong type");
    player.setAnswer("error");
    EXPECT_THAT(read(mpris), isUnreadable());
    EXPECT_THAT(read(mpris), isUnreadable());
    EXPECT_THAT(log, ElementsAre(error));
    for (const char* manner : {"text", "nothing"}) {
        player.setAnswer(manner);
        EXPECT_THAT(read(mpris), isUnreadable()) << manner;
    }
    EXPECT_THAT(log, ElementsAre(error, wrongType));
    player.setAnswer("");
    EXPECT_THAT(read(mpris), isSnapshot(snapshotOf("Song")));
    player.setAnswer("text");
    EXPECT_THAT(read(mpris), isUnreadable());
    EXPECT_THAT(log, ElementsAre(error, wrongType, wrongType));
}

TEST_F(MprisPlayerTest, TwoReadingsAtOnceBothEnd) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    auto mpris = adapter();
    Answer first, second;
    begin(mpris, first);
    begin(mpris, second);
    EXPECT_TRUE(test::waitUntil([&] { return first && second; }));
    EXPECT_THAT(first, isSnapshot(snapshotOf("Song")));
    EXPECT_THAT(second, isSnapshot(snapshotOf("Song")));
}

} // namespace
} // namespace brellowind::platform
