#include "playback/MonitorFixture.h"

#include <gtest/gtest.h>

namespace brellowind {
namespace {

using namespace std::chrono_literals;
using test::Entries;
using test::Journal;
using test::Monitor;
using test::tolerance;

TEST(NowPlayingToggle, WhilePlayingPausesAtOnceAndTellsThePlayer) {
    Monitor monitor;
    monitor.spotify.position = "10";
    monitor.spotify.state = "playing";
    monitor.nowPlaying->start();
    Journal journal(*monitor.nowPlaying);
    monitor.nowPlaying->togglePlayPause();
    EXPECT_FALSE(monitor.nowPlaying->isPlaying.get());
    EXPECT_EQ(journal.take(), Entries{"isPlaying: Song, playing, 10000 ms"});
    EXPECT_EQ(monitor.spotify.toggles(), 1U);
    EXPECT_EQ(monitor.spotify.readings(), 1U);
}

TEST(NowPlayingToggle, FlipsTheFlagBeforeTheCommandIsSent) {
    Monitor monitor;
    monitor.nowPlaying->start();
    bool flippedBefore = false;
    monitor.machine.scripting.answer = [&](const auto&) {
        flippedBefore = monitor.nowPlaying->isPlaying.get();
        return platform::ScriptOutcome{};
    };
    monitor.nowPlaying->togglePlayPause();
    EXPECT_TRUE(flippedBefore);
}

TEST(NowPlayingToggle, IsConfirmedByAReading150MillisecondsLater) {
    Monitor monitor;
    monitor.spotify.state = "playing";
    monitor.nowPlaying->start();
    monitor.advance(300ms);
    monitor.spotify.obeysToggles = false;
    monitor.nowPlaying->togglePlayPause();
    monitor.advance(149ms);
    EXPECT_EQ(monitor.spotify.readings(), 1U);
    EXPECT_FALSE(monitor.nowPlaying->isPlaying.get());
    monitor.advance(1ms);
    EXPECT_EQ(monitor.spotify.readings(), 2U);
    EXPECT_TRUE(monitor.nowPlaying->isPlaying.get());
    EXPECT_EQ(monitor.machine.tasks.running(), 0U);
}

TEST(NowPlayingToggle, ThatThePlayerObeysStays) {
    Monitor monitor;
    monitor.spotify.state = "playing";
    monitor.nowPlaying->start();
    monitor.nowPlaying->togglePlayPause();
    monitor.advance(3s);
    EXPECT_FALSE(monitor.nowPlaying->isPlaying.get());
    EXPECT_EQ(monitor.spotify.state, "paused");
}

TEST(NowPlayingToggle, WhilePausedAdvancesByTheTimeSinceTheLastReadingUntilConfirmed) {
    Monitor monitor;
    monitor.spotify.position = "10";
    monitor.nowPlaying->start();
    monitor.advance(400ms);
    monitor.nowPlaying->togglePlayPause();
    EXPECT_EQ(monitor.position(), 10);
    monitor.advance(50ms);
    EXPECT_NEAR(monitor.position(), 10.45, tolerance);
    monitor.spotify.position = "10.15";
    monitor.advance(100ms);
    EXPECT_NEAR(monitor.position(), 10.15, tolerance);
    monitor.advance(50ms);
    EXPECT_NEAR(monitor.position(), 10.2, tolerance);
}

TEST(NowPlayingToggle, WhoseConfirmationFailsStaysUntilAReadingSucceeds) {
    Monitor monitor;
    monitor.nowPlaying->start();
    monitor.spotify.error = "not allowed";
    monitor.nowPlaying->togglePlayPause();
    monitor.advance(900ms);
    EXPECT_TRUE(monitor.nowPlaying->isPlaying.get());
    EXPECT_EQ(monitor.machine.log.lines.size(), 2U); // the command and the confirmation
    monitor.spotify.error.reset();
    monitor.advance(100ms);
    EXPECT_FALSE(monitor.nowPlaying->isPlaying.get());
}

TEST(NowPlayingToggle, TwiceInARowConfirmsTwice) {
    Monitor monitor;
    monitor.nowPlaying->start();
    monitor.nowPlaying->togglePlayPause();
    monitor.advance(100ms);
    monitor.nowPlaying->togglePlayPause();
    EXPECT_FALSE(monitor.nowPlaying->isPlaying.get());
    monitor.advance(50ms);
    EXPECT_EQ(monitor.spotify.readings(), 2U);
    monitor.advance(100ms);
    EXPECT_EQ(monitor.spotify.readings(), 3U);
    EXPECT_FALSE(monitor.nowPlaying->isPlaying.get());
}

TEST(NowPlayingToggle, WithThePlayerGoneClearsNothingMoreThanAReadingDoes) {
    Monitor monitor;
    monitor.spotify.quit();
    monitor.nowPlaying->start();
    monitor.nowPlaying->togglePlayPause();
    monitor.advance(150ms);
    EXPECT_EQ(monitor.spotify.toggles(), 1U);
    EXPECT_TRUE(monitor.nowPlaying->isPlaying.get()); // without a track there is nothing to take
}

TEST(NowPlayingToggle, ConfirmsAlsoWhenStopped) {
    Monitor monitor;
    monitor.nowPlaying->togglePlayPause();
    monitor.advance(150ms);
    EXPECT_EQ(monitor.spotify.readings(), 1U);
    EXPECT_EQ(monitor.title(), "Song");
}

} // namespace
} // namespace brellowind
