// SPDX-License-Identifier: MIT

#include "playback/MonitorFixture.h"

#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brellowind {
namespace {

using namespace std::chrono_literals;
using test::Entries;
using test::Journal;
using test::Monitor;
using test::tolerance;

TEST(NowPlaying, AsksNothingBeforeItsStart) {
    Monitor monitor;
    monitor.advance(5s);
    EXPECT_EQ(monitor.nowPlaying->track.get(), std::nullopt);
    EXPECT_FALSE(monitor.nowPlaying->isPlaying.get());
    EXPECT_EQ(monitor.position(), 0);
    EXPECT_EQ(monitor.spotify.readings(), 0U);
    EXPECT_EQ(monitor.machine.mainLoop.timerCount(), 0U);
}

TEST(NowPlayingStart, ReadsThePlayerAtOnce) {
    Monitor monitor;
    monitor.spotify.artwork = "https://covers.example/1";
    monitor.spotify.position = 12.5;
    monitor.spotify.plays = true;
    monitor.start();
    EXPECT_EQ(monitor.nowPlaying->track.get(),
              Track("Song", "Artist", "Album", 215000, "https://covers.example/1"));
    EXPECT_TRUE(monitor.nowPlaying->isPlaying.get());
    EXPECT_EQ(monitor.position(), 12.5);
}

TEST(NowPlayingStart, ReadsOnceASecondFromThenOn) {
    Monitor monitor;
    monitor.start();
    EXPECT_EQ(monitor.spotify.readings(), 1U);
    monitor.advance(999ms);
    EXPECT_EQ(monitor.spotify.readings(), 1U);
    monitor.advance(1ms);
    EXPECT_EQ(monitor.spotify.readings(), 2U);
    monitor.advance(10s);
    EXPECT_EQ(monitor.spotify.readings(), 12U);
}

TEST(NowPlayingStart, CalledTwiceReadsOncePerCallAndThenOnceASecond) {
    Monitor monitor;
    monitor.start();
    monitor.advance(400ms);
    monitor.start();
    EXPECT_EQ(monitor.spotify.readings(), 2U);
    monitor.advance(999ms);
    EXPECT_EQ(monitor.spotify.readings(), 2U);
    monitor.advance(1ms);
    EXPECT_EQ(monitor.spotify.readings(), 3U);
}

TEST(NowPlayingStop, EndsBothTimersAndKeepsThePublishedValues) {
    Monitor monitor;
    monitor.spotify.position = 7;
    monitor.spotify.plays = true;
    monitor.start();
    monitor.nowPlaying->stop();
    EXPECT_EQ(monitor.machine.mainLoop.timerCount(), 0U);
    monitor.spotify.playSong("Other");
    monitor.advance(3s);
    EXPECT_EQ(monitor.title(), "Song");
    EXPECT_TRUE(monitor.nowPlaying->isPlaying.get());
    EXPECT_EQ(monitor.position(), 7);
    EXPECT_EQ(monitor.spotify.readings(), 1U);
}

TEST(NowPlayingStop, MayBeFollowedByAnotherStart) {
    Monitor monitor;
    monitor.nowPlaying->stop();
    monitor.start();
    monitor.nowPlaying->stop();
    monitor.start();
    monitor.advance(1s);
    EXPECT_EQ(monitor.spotify.readings(), 3U);
}

TEST(NowPlayingReading, AssignsTrackThenPlayingFlagThenPosition) {
    Monitor monitor;
    monitor.spotify.position = 3;
    monitor.spotify.plays = true;
    Journal journal(*monitor.nowPlaying);
    monitor.start();
    EXPECT_EQ(journal.take(),
              (Entries{"track: absent, paused, 0 ms", "isPlaying: Song, paused, 0 ms",
                       "positionSec: Song, playing, 0 ms"}));
    EXPECT_EQ(monitor.position(), 3);
}

TEST(NowPlayingReading, AnotherSongReplacesTheTrackWhileThePositionStillHoldsTheOldOne) {
    Monitor monitor;
    monitor.spotify.position = 200;
    monitor.start();
    monitor.spotify.playSong("Next");
    Journal journal(*monitor.nowPlaying);
    monitor.advance(1s);
    EXPECT_EQ(journal.take(),
              (Entries{"track: Song, paused, 200000 ms", "isPlaying: Next, paused, 200000 ms",
                       "positionSec: Next, paused, 200000 ms"}));
    EXPECT_EQ(monitor.position(), 0);
}

TEST(NowPlayingReading, SameSongAssignsPlayingFlagAndPositionAlsoUnchanged) {
    Monitor monitor;
    monitor.start();
    Journal journal(*monitor.nowPlaying);
    monitor.advance(1s);
    EXPECT_EQ(journal.take(),
              (Entries{"isPlaying: Song, paused, 0 ms", "positionSec: Song, paused, 0 ms"}));
}

TEST(NowPlayingReading, KeepsPublishedTrackWhenOnlyDurationOrArtworkDiffers) {
    Monitor monitor;
    monitor.start();
    monitor.spotify.durationMs = 1000;
    monitor.spotify.artwork = "https://covers.example/late";
    monitor.spotify.position = 4;
    monitor.spotify.plays = true;
    int trackAssignments = 0;
    const auto subscription = monitor.nowPlaying->track.observe([&] { ++trackAssignments; });
    monitor.advance(1s);
    EXPECT_EQ(trackAssignments, 0);
    EXPECT_EQ(monitor.nowPlaying->track.get(),
              Track("Song", "Artist", "Album", 215000, std::nullopt));
    EXPECT_TRUE(monitor.nowPlaying->isPlaying.get());
    EXPECT_EQ(monitor.position(), 4);
}

TEST(NowPlayingReading, SongsWhoseIdsCoincideCountAsOne) {
    Monitor monitor;
    monitor.spotify.title = "x|y";
    monitor.spotify.artist = "z";
    monitor.start();
    monitor.spotify.title = "x";
    monitor.spotify.artist = "y|z";
    monitor.advance(1s);
    EXPECT_EQ(monitor.title(), "x|y");
}

TEST(NowPlayingReading, EachPartOfTheIdMakesAnotherSong) {
    Monitor monitor;
    int assignments = 0;
    const auto subscription = monitor.nowPlaying->track.observe([&] { ++assignments; });
    monitor.start();
    monitor.spotify.title = "Other";
    monitor.advance(1s);
    monitor.spotify.artist = "Other";
    monitor.advance(1s);
    monitor.spotify.album = "Other";
    monitor.advance(1s);
    EXPECT_EQ(assignments, 4);
}

TEST(NowPlayingReading, AnUntitledSongIsStillATrack) {
    Monitor monitor;
    monitor.spotify.title = monitor.spotify.artist = monitor.spotify.album = "";
    monitor.start();
    EXPECT_EQ(monitor.nowPlaying->track.get(), Track("", "", "", 215000, std::nullopt));
}

TEST(NowPlayingTick, AdvancesThePositionTwentyTimesASecond) {
    Monitor monitor;
    monitor.spotify.position = 10;
    monitor.spotify.plays = true;
    monitor.start();
    Journal journal(*monitor.nowPlaying);
    monitor.advance(49ms);
    EXPECT_EQ(monitor.position(), 10);
    monitor.advance(1ms);
    EXPECT_NEAR(monitor.position(), 10.05, tolerance);
    EXPECT_EQ(journal.take(), Entries{"positionSec: Song, playing, 10000 ms"});
    monitor.advance(900ms);
    EXPECT_NEAR(monitor.position(), 10.95, tolerance);
    EXPECT_EQ(journal.take().size(), 18U);
}

TEST(NowPlayingTick, ChangesNothingWhilePaused) {
    Monitor monitor;
    monitor.spotify.position = 10;
    monitor.start();
    Journal journal(*monitor.nowPlaying);
    monitor.advance(999ms);
    EXPECT_EQ(monitor.position(), 10);
    EXPECT_EQ(journal.take(), Entries{});
}

TEST(NowPlayingTick, WakesTheProgramOnlyWhilePlaying) {
    Monitor monitor;
    const auto wakeUpsInTenSeconds = [&] {
        const auto before = monitor.machine.mainLoop.wakeUps();
        monitor.advance(10s);
        return monitor.machine.mainLoop.wakeUps() - before;
    };
    monitor.start();
    EXPECT_EQ(wakeUpsInTenSeconds(), 10U); // the readings
    monitor.spotify.plays = true;
    monitor.advance(1s);
    EXPECT_EQ(wakeUpsInTenSeconds(), 200U); // each reading coincides with a tick
    monitor.spotify.quit();
    monitor.advance(1s);
    EXPECT_EQ(wakeUpsInTenSeconds(), 10U);
}

TEST(NowPlayingTick, ALateTickMakesUpForTheTimeLost) {
    Monitor monitor;
    monitor.spotify.position = 10;
    monitor.spotify.plays = true;
    monitor.start();
    monitor.advance(100ms);
    monitor.machine.clock.shift += 730ms;
    monitor.advance(50ms);
    EXPECT_NEAR(monitor.position(), 10.88, tolerance);
    monitor.advance(50ms);
    EXPECT_NEAR(monitor.position(), 10.93, tolerance);
}

TEST(NowPlayingTick, FollowsAWallClockThatIsPutBack) {
    Monitor monitor;
    monitor.spotify.position = 10;
    monitor.spotify.plays = true;
    monitor.start();
    monitor.machine.clock.shift -= 3s;
    monitor.advance(50ms);
    EXPECT_NEAR(monitor.position(), 7.05, tolerance);
    monitor.advance(50ms);
    EXPECT_NEAR(monitor.position(), 7.1, tolerance);
}

TEST(NowPlayingTick, CountsFromTheLastReadingAndNotFromTheTickBeforeIt) {
    Monitor monitor;
    monitor.spotify.plays = true;
    monitor.start();
    monitor.advance(999ms);
    monitor.machine.clock.shift += 20s; // between the tick at 950 ms and the reading at 1000 ms
    monitor.spotify.position = 30;
    monitor.advance(51ms);
    EXPECT_EQ(monitor.spotify.readings(), 2U);
    EXPECT_NEAR(monitor.position(), 30.05, tolerance);
}

TEST(NowPlayingTick, CountsFromTheMomentTheAnswerArrived) {
    Monitor monitor;
    monitor.spotify.position = 10;
    monitor.spotify.plays = true;
    monitor.spotify.answerTime = 400ms;
    monitor.start();
    monitor.advance(450ms);
    EXPECT_NEAR(monitor.position(), 10.05, tolerance);
}

TEST(NowPlayingTick, CountsFromTheMomentAfterThePositionWasPublished) {
    Monitor monitor;
    monitor.spotify.position = 10;
    monitor.spotify.plays = true;
    auto slowObserver =
        monitor.nowPlaying->positionSec.observe([&] { monitor.machine.clock.shift += 300ms; });
    monitor.start();
    slowObserver.cancel();
    monitor.advance(50ms);
    EXPECT_NEAR(monitor.position(), 10.05, tolerance);
}

TEST(NowPlayingTick, NeverClampsThePositionToTheDuration) {
    Monitor monitor;
    monitor.spotify.durationMs = 11000;
    monitor.spotify.position = 10.9;
    monitor.spotify.plays = true;
    monitor.start();
    monitor.advance(950ms);
    EXPECT_NEAR(monitor.position(), 11.85, tolerance);
}

TEST(NowPlayingFailingReading, ChangesNothing) {
    Monitor monitor;
    monitor.spotify.position = 10;
    monitor.start();
    Journal journal(*monitor.nowPlaying);
    monitor.spotify.readable = false;
    monitor.advance(1s);
    EXPECT_EQ(monitor.spotify.readings(), 2U);
    EXPECT_EQ(journal.take(), Entries{});
    EXPECT_EQ(monitor.title(), "Song");
}

TEST(NowPlayingFailingReading, LeavesThePositionRunningOnItsOwn) {
    Monitor monitor;
    monitor.spotify.position = 214;
    monitor.spotify.plays = true;
    monitor.start();
    monitor.spotify.readable = false;
    monitor.advance(60s);
    EXPECT_NEAR(monitor.position(), 274, 1e-6);
    EXPECT_TRUE(monitor.nowPlaying->isPlaying.get());
    EXPECT_EQ(monitor.title(), "Song");
}

TEST(NowPlayingFailingReading, DoesNotCountAsTheMomentToAdvanceFrom) {
    Monitor monitor;
    monitor.spotify.position = 10;
    monitor.start();
    monitor.spotify.readable = false;
    monitor.advance(2s);
    monitor.toggle();
    monitor.advance(50ms);
    EXPECT_NEAR(monitor.position(), 12.05, tolerance);
}

TEST(NowPlayingFailingReading, TheNextSuccessfulOneSetsEverythingRight) {
    Monitor monitor;
    monitor.spotify.plays = true;
    monitor.start();
    monitor.spotify.readable = false;
    monitor.advance(5s);
    monitor.spotify.readable = true;
    monitor.spotify.playSong("Next");
    monitor.spotify.position = 2;
    monitor.advance(1s);
    EXPECT_EQ(monitor.title(), "Next");
    EXPECT_EQ(monitor.position(), 2);
}

TEST(NowPlayingSlowPlayer, IsShownHoweverLongItTakesToAnswer) {
    for (const auto answerTime : {260ms, 3000ms, 40000ms}) {
        Monitor monitor;
        monitor.spotify.position = 10;
        monitor.spotify.plays = true;
        monitor.spotify.answerTime = answerTime;
        monitor.start();
        monitor.advance(answerTime - 1ms);
        EXPECT_EQ(monitor.title(), "absent");
        monitor.advance(1ms);
        EXPECT_EQ(monitor.title(), "Song");
        EXPECT_EQ(monitor.position(), 10);
    }
}

TEST(NowPlayingSlowPlayer, IsAskedOneQuestionAtATime) {
    Monitor monitor;
    monitor.spotify.answerTime = 2500ms;
    monitor.start();
    monitor.advance(2499ms);
    EXPECT_EQ(monitor.spotify.readings(), 1U);
    monitor.advance(501ms); // the answer, and the next poll
    EXPECT_EQ(monitor.spotify.readings(), 2U);
    monitor.advance(2500ms);
    EXPECT_EQ(monitor.spotify.readings(), 2U);
}

TEST(NowPlayingSlowPlayer, WhoseAnswerComesAfterTheStopIsNotShown) {
    Monitor monitor;
    monitor.spotify.answerTime = 300ms;
    monitor.start();
    monitor.nowPlaying->stop();
    monitor.advance(3s);
    EXPECT_EQ(monitor.title(), "absent");
    EXPECT_EQ(monitor.machine.tasks.running(), 0U);
}

TEST(NowPlayingSlowPlayer, IsAskedAnewByAnotherStart) {
    Monitor monitor;
    monitor.spotify.answerTime = 300ms;
    monitor.start();
    monitor.advance(200ms);
    monitor.start();
    EXPECT_EQ(monitor.spotify.readings(), 2U);
    monitor.advance(100ms);
    EXPECT_EQ(monitor.title(), "absent");
    monitor.advance(200ms);
    EXPECT_EQ(monitor.title(), "Song");
}

TEST(NowPlayingQuitting, TakesTrackAndPlayingFlagButKeepsThePosition) {
    Monitor monitor;
    monitor.spotify.position = 42;
    monitor.spotify.plays = true;
    monitor.start();
    monitor.advance(950ms);
    monitor.spotify.quit();
    Journal journal(*monitor.nowPlaying);
    monitor.advance(50ms);
    EXPECT_EQ(journal.take(),
              (Entries{"positionSec: Song, playing, 42950 ms", "track: Song, playing, 43000 ms",
                       "isPlaying: absent, playing, 43000 ms"}));
    EXPECT_FALSE(monitor.nowPlaying->isPlaying.get());
    EXPECT_EQ(monitor.nowPlaying->track.get(), std::nullopt);
    EXPECT_NEAR(monitor.position(), 43, tolerance);
}

TEST(NowPlayingQuitting, IsAnnouncedOnce) {
    Monitor monitor;
    monitor.start();
    monitor.spotify.quit();
    monitor.advance(1s);
    Journal journal(*monitor.nowPlaying);
    monitor.advance(5s);
    EXPECT_EQ(journal.take(), Entries{});
    EXPECT_EQ(monitor.spotify.readings(), 7U);
}

TEST(NowPlayingQuitting, ThePlayerThatNeverRanAssignsNothing) {
    Monitor monitor;
    monitor.spotify.quit();
    Journal journal(*monitor.nowPlaying);
    monitor.start();
    monitor.advance(2s);
    EXPECT_EQ(journal.take(), Entries{});
}

TEST(NowPlayingQuitting, ALaterLaunchPublishesTheSongAgain) {
    Monitor monitor;
    monitor.start();
    monitor.spotify.quit();
    monitor.advance(1s);
    monitor.spotify.launch();
    monitor.advance(1s);
    EXPECT_EQ(monitor.title(), "Song");
}

TEST(NowPlayingLifetime, TimersDoNotKeepTheMonitorAlive) {
    Monitor monitor;
    monitor.start();
    const std::weak_ptr<NowPlaying> observer = monitor.nowPlaying;
    monitor.nowPlaying.reset();
    EXPECT_TRUE(observer.expired());
    monitor.advance(3s);
    EXPECT_EQ(monitor.spotify.readings(), 1U);
}

TEST(NowPlayingLifetime, ToggleKeepsTheMonitorAliveUntilItsConfirmation) {
    Monitor monitor;
    monitor.start();
    monitor.toggle();
    const std::weak_ptr<NowPlaying> observer = monitor.nowPlaying;
    monitor.nowPlaying.reset();
    monitor.advance(149ms);
    EXPECT_FALSE(observer.expired());
    monitor.advance(1ms);
    EXPECT_EQ(monitor.spotify.readings(), 2U);
    EXPECT_TRUE(observer.expired());
}

TEST(NowPlayingLifetime, AReadingEndsEvenIfAnObserverReleasesTheMonitor) {
    Monitor monitor;
    monitor.start();
    monitor.spotify.playSong("Next");
    Journal journal(*monitor.nowPlaying);
    const auto releasing = monitor.nowPlaying->track.observe([&] { monitor.nowPlaying.reset(); });
    monitor.advance(2s);
    EXPECT_EQ(journal.take(), (Entries{"track: Song, paused, 0 ms", "isPlaying: Next, paused, 0 ms",
                                       "positionSec: Next, paused, 0 ms"}));
    EXPECT_EQ(monitor.spotify.readings(), 2U);
}

} // namespace
} // namespace brellowind
