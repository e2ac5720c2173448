// SPDX-License-Identifier: MIT

#include "support/PrintGeometry.h"
#include "views/RootViewFixture.h"

#include <gtest/gtest.h>
#include <optional>

namespace brellowind {
namespace {

using namespace std::chrono_literals;
using test::FakeOverlay;
using test::View;

/// The last value of the window's setIgnoresMouseEvents; nullopt before the first call.
std::optional<bool> ignoresMouse(const View& view) {
    std::optional<bool> ignores;
    for (const auto& call : view.window.calls)
        if (const auto* set = std::get_if<FakeOverlay::SetIgnoresMouseEvents>(&call))
            ignores = set->ignores;
    return ignores;
}

TEST(NotchRootViewHover, FollowsThePointerInAndOut) {
    View view;
    view.appear();
    EXPECT_FALSE(view.form().hovered);
    view.movePointer(View::overThePill);
    EXPECT_TRUE(view.form().hovered);
    view.movePointer(View::elsewhere);
    EXPECT_FALSE(view.form().hovered);
}

TEST(NotchRootViewHover, IsKnownAtOnceForAPointerThatRestsOnThePill) {
    View view;
    view.machine.pointer.position = View::overThePill;
    view.appear();
    EXPECT_TRUE(view.form().hovered);
    EXPECT_EQ(ignoresMouse(view), false);
}

TEST(NotchRootViewHover, IsNotWatchedBeforeTheViewAppears) {
    View view;
    view.movePointer(View::overThePill);
    EXPECT_FALSE(view.form().hovered);
    EXPECT_TRUE(view.window.calls.empty());
}

TEST(NotchRootViewHover, ComesWithOneRedrawOnTheNextTurn) {
    View view;
    view.appear();
    int redraws = 0;
    const auto subscription = view.view.onRedraw([&] { ++redraws; });
    view.machine.pointer.move(View::overThePill);
    EXPECT_FALSE(view.form().hovered);
    EXPECT_EQ(redraws, 0);
    view.runTurns();
    EXPECT_TRUE(view.form().hovered);
    EXPECT_EQ(redraws, 1);
    view.movePointer({View::overThePill.x + 1, View::overThePill.y});
    EXPECT_EQ(redraws, 1) << "a movement on the pill changes nothing";
}

TEST(NotchRootViewHover, OfEachPieceIsItsOwn) {
    View view;
    view.view.hoverCover(true);
    EXPECT_EQ(view.form(), (NotchRootView::Form{.coverHovered = true}));
    view.view.hoverGrabber(true);
    EXPECT_EQ(view.form(), (NotchRootView::Form{.coverHovered = true, .grabberHovered = true}));
    view.view.hoverCover(false);
    view.view.hoverWaveform(true);
    EXPECT_EQ(view.form(), (NotchRootView::Form{.grabberHovered = true, .waveformHovered = true}));
    view.view.hoverGrabber(false);
    view.view.hoverWaveform(false);
    EXPECT_EQ(view.form(), NotchRootView::Form{});
}

TEST(NotchRootViewHover, OfEachPieceIsShownOnTheNextTurn) {
    View view;
    int redraws = 0;
    const auto subscription = view.view.onRedraw([&] { ++redraws; });
    const std::function<void()> hovers[] = {
        [&] { view.view.hoverCover(true); },
        [&] { view.view.hoverGrabber(true); },
        [&] { view.view.hoverWaveform(true); },
    };
    for (const auto& hover : hovers) {
        redraws = 0;
        hover();
        EXPECT_EQ(redraws, 0);
        view.runTurns();
        EXPECT_EQ(redraws, 1);
    }
}

TEST(NotchRootViewSize, IsWhereThePointerCountsAsOverThePill) {
    View view;
    view.appear();
    view.view.sizeChanged({352, 430});
    view.movePointer({756 - 176 - 8, 982 - 430 - 8});
    EXPECT_TRUE(view.form().hovered);
    view.movePointer({756 - 176 - 9, 982 - 430 - 8});
    EXPECT_FALSE(view.form().hovered);
    view.view.sizeChanged({272, 33});
    view.movePointer({756 - 136 - 8, 982 - 33 - 8});
    EXPECT_TRUE(view.form().hovered);
    view.movePointer({756 - 136 - 8, 982 - 33 - 9});
    EXPECT_FALSE(view.form().hovered);
}

TEST(NotchRootViewSize, IsTakenByTheNextMovementOnly) {
    View view;
    view.appear();
    view.movePointer({756, 982 - 100});
    ASSERT_FALSE(view.form().hovered);
    view.view.sizeChanged({352, 430});
    view.runTurns();
    EXPECT_FALSE(view.form().hovered);
    view.movePointer({757, 982 - 100});
    EXPECT_TRUE(view.form().hovered);
}

TEST(NotchRootViewInteractivity, FollowsThePointerAndNotTheHoverOfAPiece) {
    View view;
    view.appear();
    view.view.hoverCover(true);
    view.runTurns();
    EXPECT_EQ(ignoresMouse(view), std::nullopt) << "the window begins click-through by itself";
    view.movePointer(View::overThePill);
    EXPECT_EQ(ignoresMouse(view), false);
    view.movePointer(View::elsewhere);
    EXPECT_EQ(ignoresMouse(view), true);
}

TEST(NotchRootViewInteractivity, IsSwitchedOnATurnAfterTheRedraw) {
    View view;
    view.appear();
    std::vector<std::optional<bool>> seen;
    const auto subscription = view.view.onRedraw([&] { seen.push_back(ignoresMouse(view)); });
    view.movePointer(View::overThePill);
    EXPECT_EQ(seen, std::vector<std::optional<bool>>{std::nullopt})
        << "never inside the redraw that sees the change";
    EXPECT_EQ(ignoresMouse(view), false);
}

TEST(NotchRootViewInteractivity, IsLeftAloneWhileThePointerStaysInOrOut) {
    View view;
    view.spotify.plays = true;
    view.appear();
    view.movePointer(View::overThePill);
    ASSERT_EQ(view.window.calls.size(), 1U);
    view.advance(3s);
    view.movePointer({View::overThePill.x, View::overThePill.y + 1});
    EXPECT_EQ(view.window.calls.size(), 1U);
}

TEST(NotchRootViewInteractivity, IsNotSwitchedByAPointerThatIsBackBeforeTheNextTurn) {
    View view;
    view.appear();
    view.machine.pointer.move(View::overThePill);
    view.machine.pointer.move(View::elsewhere);
    view.runTurns();
    EXPECT_NE(ignoresMouse(view), false);
    EXPECT_FALSE(view.form().hovered);
}

} // namespace
} // namespace brellowind
