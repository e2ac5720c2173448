// SPDX-License-Identifier: MIT

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
    monitor.spotify.position = 10;
    monitor.spotify.plays = true;
    monitor.start();
    Journal journal(*monitor.nowPlaying);
    monitor.toggle();
    EXPECT_FALSE(monitor.nowPlaying->isPlaying.get());
    EXPECT_EQ(journal.take(), Entries{"isPlaying: Song, playing, 10000 ms"});
    EXPECT_EQ(monitor.spotify.toggles(), 1U);
    EXPECT_EQ(monitor.spotify.readings(), 1U);
}

TEST(NowPlayingToggle, FlipsTheFlagBeforeTheCommandIsSent) {
    Monitor monitor;
    monitor.start();
    std::size_t commandsBefore = 1;
    const auto subscription =
        monitor.nowPlaying->isPlaying.observe([&] { commandsBefore = monitor.spotify.toggles(); });
    monitor.toggle();
    EXPECT_EQ(commandsBefore, 0U);
    EXPECT_EQ(monitor.spotify.toggles(), 1U);
}

TEST(NowPlayingToggle, IsNotUndoneByAnAnswerThatWasAskedForBeforeIt) {
    Monitor monitor;
    monitor.start();
    monitor.spotify.answerTime = 600ms;
    monitor.spotify.obeysToggles = false; // the player stays paused
    monitor.advance(1s);
    monitor.spotify.position = 5;
    monitor.toggle();
    monitor.advance(600ms);
    EXPECT_EQ(monitor.position(), 5);
    EXPECT_TRUE(monitor.nowPlaying->isPlaying.get());
    monitor.advance(1s); // the next question has been answered
    EXPECT_FALSE(monitor.nowPlaying->isPlaying.get());
}

TEST(NowPlayingToggle, IsConfirmedByAReading150MillisecondsLater) {
    Monitor monitor;
    monitor.spotify.plays = true;
    monitor.start();
    monitor.advance(300ms);
    monitor.spotify.obeysToggles = false;
    monitor.toggle();
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
    monitor.spotify.plays = true;
    monitor.start();
    monitor.toggle();
    monitor.advance(3s);
    EXPECT_FALSE(monitor.nowPlaying->isPlaying.get());
    EXPECT_FALSE(monitor.spotify.plays);
}

TEST(NowPlayingToggle, WhilePausedAdvancesByTheTimeSinceTheLastReadingUntilConfirmed) {
    Monitor monitor;
    monitor.spotify.position = 10;
    monitor.start();
    monitor.advance(400ms);
    monitor.toggle();
    EXPECT_EQ(monitor.position(), 10);
    monitor.advance(50ms);
    EXPECT_NEAR(monitor.position(), 10.45, tolerance);
    monitor.spotify.position = 10.15;
    monitor.advance(100ms);
    EXPECT_NEAR(monitor.position(), 10.15, tolerance);
    monitor.advance(50ms);
    EXPECT_NEAR(monitor.position(), 10.2, tolerance);
}

TEST(NowPlayingToggle, WhoseConfirmationFailsStaysUntilAReadingSucceeds) {
    Monitor monitor;
    monitor.start();
    monitor.spotify.readable = false;
    monitor.toggle();
    monitor.advance(900ms);
    EXPECT_TRUE(monitor.nowPlaying->isPlaying.get());
    monitor.spotify.readable = true;
    monitor.advance(100ms);
    EXPECT_FALSE(monitor.nowPlaying->isPlaying.get());
}

TEST(NowPlayingToggle, TwiceInARowConfirmsTwice) {
    Monitor monitor;
    monitor.start();
    monitor.toggle();
    monitor.advance(100ms);
    monitor.toggle();
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
    monitor.start();
    monitor.toggle();
    monitor.advance(150ms);
    EXPECT_EQ(monitor.spotify.toggles(), 1U);
    EXPECT_TRUE(monitor.nowPlaying->isPlaying.get()); // without a track the answer has no effect
}

TEST(NowPlayingToggle, ConfirmsAlsoWhenStopped) {
    Monitor monitor;
    monitor.toggle();
    monitor.advance(150ms);
    EXPECT_EQ(monitor.spotify.readings(), 1U);
    EXPECT_EQ(monitor.title(), "Song");
}

} // namespace
} // namespace brellowind
