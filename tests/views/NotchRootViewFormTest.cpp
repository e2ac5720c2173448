// SPDX-License-Identifier: MIT

#include "views/RootViewFixture.h"

#include <gtest/gtest.h>

namespace brellowind {
namespace {

using namespace std::chrono_literals;
using test::View;

NotchRootView::Form plainForm() {
    return {};
}

TEST(NotchRootViewForm, BeginsAsTheDefaultPill) {
    const View view;
    EXPECT_EQ(view.form(), plainForm());
}

TEST(NotchRootViewForm, IsLeftAloneByAPlayerThatIsPausedFromTheStart) {
    View view;
    view.appear();
    view.advance(5s);
    EXPECT_EQ(view.form(), plainForm());
}

TEST(NotchRootViewForm, IsMinimizedByAPauseWhileThePointerIsElsewhere) {
    View view;
    view.appear();
    view.movePointer(View::elsewhere);
    view.resume();
    EXPECT_FALSE(view.form().isMinimized);
    view.pause();
    EXPECT_TRUE(view.form().isMinimized);
}

TEST(NotchRootViewForm, IsNotMinimizedUnderThePointer) {
    View view;
    view.appear();
    view.resume();
    view.movePointer(View::overThePill);
    view.pause();
    EXPECT_FALSE(view.form().isMinimized);
    view.movePointer(View::elsewhere);
    view.advance(5s);
    EXPECT_FALSE(view.form().isMinimized) << "leaving later does not make up for it";
}

TEST(NotchRootViewForm, StaysMinimizedWhenAPauseComesUnderThePointer) {
    View view;
    view.appear();
    view.resume();
    view.movePointer(View::overThePill);
    view.view.tapBackground();
    view.pause();
    EXPECT_TRUE(view.form().isMinimized);
}

TEST(NotchRootViewForm, CountsAPointerThatLeavesInTheTurnOfThePauseAsGone) {
    View view;
    view.appear();
    view.resume();
    view.movePointer(View::overThePill);
    view.machine.pointer.move(View::elsewhere);
    view.view.tapWaveform();
    view.runTurns();
    EXPECT_TRUE(view.form().isMinimized);
}

TEST(NotchRootViewForm, IsRestoredByPlaying) {
    View view;
    view.appear();
    view.resume();
    view.pause();
    ASSERT_TRUE(view.form().isMinimized);
    view.resume();
    EXPECT_FALSE(view.form().isMinimized);
}

TEST(NotchRootViewForm, IsRestoredByPlayingAlsoUnderThePointerAndAfterATap) {
    View view;
    view.appear();
    view.movePointer(View::overThePill);
    view.view.tapBackground();
    ASSERT_TRUE(view.form().isMinimized);
    view.resume();
    EXPECT_FALSE(view.form().isMinimized);
}

TEST(NotchRootViewForm, IsMinimizedWhenAPlayingPlayerQuits) {
    View view;
    view.appear();
    view.resume();
    view.spotify.quit();
    view.advance(1s);
    EXPECT_TRUE(view.form().isMinimized);
    EXPECT_EQ(view.text(), "No music playing");
}

TEST(NotchRootViewForm, IsKeptByAChangeOfSong) {
    View view;
    view.appear();
    view.resume();
    view.view.tapBackground();
    view.spotify.playSong("Next");
    view.advance(1s);
    EXPECT_TRUE(view.form().isMinimized);
}

TEST(NotchRootViewTap, OnTheBackgroundMinimizesAndRestores) {
    View view;
    view.view.tapBackground();
    EXPECT_EQ(view.form(), (NotchRootView::Form{.isMinimized = true}));
    view.view.tapBackground();
    EXPECT_EQ(view.form(), plainForm());
}

TEST(NotchRootViewTap, OnTheGrabberMinimizesAndRestores) {
    View view;
    view.view.tapGrabber();
    EXPECT_EQ(view.form(), (NotchRootView::Form{.isMinimized = true}));
    view.view.tapGrabber();
    EXPECT_EQ(view.form(), plainForm());
}

TEST(NotchRootViewTap, OnTheCoverOpensTheArtworkPanel) {
    View view;
    view.view.tapCover();
    EXPECT_EQ(view.form(), (NotchRootView::Form{.isArtExpanded = true}));
}

TEST(NotchRootViewTap, OnTheCoverOfAMinimizedPillRestoresItFirst) {
    View view;
    view.view.tapBackground();
    view.view.tapCover();
    EXPECT_EQ(view.form(), (NotchRootView::Form{.isArtExpanded = true}));
    view.view.tapArtwork();
    EXPECT_EQ(view.form(), plainForm());
}

TEST(NotchRootViewTap, OnTheArtworkClosesThePanel) {
    View view;
    view.view.tapCover();
    view.view.tapArtwork();
    EXPECT_EQ(view.form(), plainForm());
}

TEST(NotchRootViewTap, OnTheGrabberOfTheArtworkPanelClosesItAndMinimizesNothing) {
    View view;
    view.view.tapCover();
    view.view.tapGrabber();
    EXPECT_EQ(view.form(), plainForm());
}

TEST(NotchRootViewTap, OnTheIndicatorPlaysAndPausesAtOnce) {
    View view;
    view.appear();
    view.view.tapWaveform();
    EXPECT_TRUE(view.view.nowPlaying().isPlaying.get());
    view.runTurns();
    EXPECT_EQ(view.spotify.toggles(), 1U);
    EXPECT_TRUE(view.spotify.plays);
    view.view.tapWaveform();
    EXPECT_FALSE(view.view.nowPlaying().isPlaying.get());
    view.runTurns();
    EXPECT_EQ(view.spotify.toggles(), 2U);
}

TEST(NotchRootViewTap, OnTheIndicatorWithoutATrackDoesNothing) {
    View view;
    view.spotify.quit();
    view.appear();
    view.view.tapWaveform();
    view.advance(1s);
    EXPECT_FALSE(view.view.nowPlaying().isPlaying.get());
    EXPECT_EQ(view.spotify.toggles(), 0U);
    EXPECT_FALSE(view.form().playPulse);
    view.spotify.launch();
    view.advance(1s);
    view.view.tapWaveform();
    view.runTurns();
    EXPECT_EQ(view.spotify.toggles(), 1U) << "now there is one";
}

TEST(NotchRootViewTap, OnTheIndicatorOfTheArtworkPanelKeepsItOpen) {
    View view;
    view.appear();
    view.view.tapCover();
    view.view.tapWaveform();
    view.runTurns();
    EXPECT_TRUE(view.form().isArtExpanded);
    EXPECT_TRUE(view.view.nowPlaying().isPlaying.get());
}

TEST(NotchRootViewTap, IsShownOnTheNextTurn) {
    View view;
    int redraws = 0;
    const auto subscription = view.view.onRedraw([&] { ++redraws; });
    const std::function<void()> taps[] = {
        [&] { view.view.tapBackground(); },
        [&] { view.view.tapGrabber(); },
        [&] { view.view.tapCover(); },
        [&] { view.view.tapArtwork(); },
    };
    for (const auto& tap : taps) {
        redraws = 0;
        tap();
        EXPECT_EQ(redraws, 0);
        view.runTurns();
        EXPECT_EQ(redraws, 1);
    }
}

TEST(NotchRootViewArtPanel, StaysOpenWhenPlaybackPausesAndLeavesTheMinimizedPill) {
    View view;
    view.appear();
    view.resume();
    view.view.tapCover();
    view.pause();
    EXPECT_TRUE(view.form().isArtExpanded);
    EXPECT_TRUE(view.form().isMinimized);
    view.view.tapArtwork();
    EXPECT_FALSE(view.form().isArtExpanded);
    EXPECT_TRUE(view.form().isMinimized);
}

TEST(NotchRootViewArtPanel, LeavesTheDefaultPillWhenPlaybackGoesOnMeanwhile) {
    View view;
    view.appear();
    view.resume();
    view.view.tapCover();
    view.pause();
    view.resume();
    EXPECT_TRUE(view.form().isArtExpanded);
    view.view.tapGrabber();
    EXPECT_FALSE(view.form().isArtExpanded);
    EXPECT_FALSE(view.form().isMinimized);
}

TEST(NotchRootViewArtPanel, StaysOpenWhenTheSongChangesOrEnds) {
    View view;
    view.appear();
    view.view.tapCover();
    view.spotify.playSong("Next");
    view.advance(1s);
    EXPECT_TRUE(view.form().isArtExpanded);
    view.spotify.quit();
    view.advance(1s);
    EXPECT_TRUE(view.form().isArtExpanded);
}

class NotchRootViewPulse : public testing::Test {
protected:
    NotchRootViewPulse() { view.appear(); }

    bool pulses() const { return view.form().playPulse; }

    /// Plays or pauses by the indicator.
    void toggle() {
        view.view.tapWaveform();
        view.runTurns();
    }

    View view;
};

TEST_F(NotchRootViewPulse, DoesNotComeBeforePlaybackChanges) {
    view.advance(5s);
    EXPECT_FALSE(pulses());
}

TEST_F(NotchRootViewPulse, LastsAHundredMilliseconds) {
    toggle();
    EXPECT_TRUE(pulses());
    view.advance(99ms);
    EXPECT_TRUE(pulses());
    view.advance(1ms);
    EXPECT_FALSE(pulses());
    view.advance(5s);
    EXPECT_FALSE(pulses());
}

TEST_F(NotchRootViewPulse, ComesWithEveryPlayAndEveryPause) {
    for (int i = 0; i < 6; ++i) {
        toggle();
        EXPECT_TRUE(pulses()) << i;
        view.advance(100ms);
        EXPECT_FALSE(pulses()) << i;
    }
}

TEST_F(NotchRootViewPulse, ComesWithAChangeThatTheReadingFinds) {
    view.spotify.plays = true;
    view.advance(1s);
    EXPECT_TRUE(pulses());
}

TEST_F(NotchRootViewPulse, ComesWithAPauseThatDoesNotMinimize) {
    toggle();
    view.advance(100ms);
    view.movePointer(View::overThePill);
    toggle();
    EXPECT_FALSE(view.form().isMinimized);
    EXPECT_TRUE(pulses());
}

TEST_F(NotchRootViewPulse, EndsWithTheFirstOfSeveralThatOverlap) {
    toggle();
    view.advance(60ms);
    toggle();
    view.advance(39ms);
    EXPECT_TRUE(pulses());
    view.advance(1ms);
    EXPECT_FALSE(pulses()) << "100 ms after the first";
    view.advance(60ms);
    EXPECT_FALSE(pulses()) << "100 ms after the second";
}

TEST_F(NotchRootViewPulse, IsCutShortByAnEarlierOneThatHasNotEnded) {
    toggle();
    view.advance(50ms);
    toggle();
    view.advance(50ms);
    toggle();
    EXPECT_TRUE(pulses()) << "begins at 100 ms";
    view.advance(50ms);
    EXPECT_FALSE(pulses()) << "the second one's sleep ended";
}

TEST_F(NotchRootViewPulse, DoesNotComeWhenPlaybackIsBackBeforeTheNextTurn) {
    view.view.tapWaveform();
    view.view.tapWaveform();
    view.runTurns();
    EXPECT_EQ(view.form(), plainForm());
}

TEST_F(NotchRootViewPulse, RedrawsWhenItEnds) {
    toggle();
    std::vector<bool> seen;
    const auto subscription = view.view.onRedraw([&] { seen.push_back(pulses()); });
    view.machine.mainLoop.advance(100ms);
    ASSERT_FALSE(seen.empty());
    EXPECT_FALSE(seen.back());
}

TEST_F(NotchRootViewPulse, EndsQuietlyAfterTheView) {
    const auto before = view.machine.tasks.running();
    view.view.tapWaveform();
    view.advance(0ms);
    ASSERT_GT(view.machine.tasks.running(), before);
    view.root.reset();
    view.advance(1s);
    EXPECT_EQ(view.machine.tasks.running(), before);
}

} // namespace
} // namespace brellowind
