// SPDX-License-Identifier: MIT

#include "notch/NotchWindow.h"
#include "support/FakeOverlay.h"
#include "support/PrintGeometry.h"
#include "support/TestMachine.h"

#include <gmock/gmock.h>

namespace brellowind {
namespace {

using test::FakeOverlay;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(NotchWindowFrame, HangsFromTheMiddleOfTheTopEdge) {
    EXPECT_EQ(notchWindowFrame({0, 0, 1512, 982}), (Rect{436, 442, 640, 540}));
}

TEST(NotchWindowFrame, IsAsWideAsANarrowScreen) {
    EXPECT_EQ(notchWindowFrame({0, 0, 600, 800}), (Rect{0, 260, 600, 540}));
}

TEST(NotchWindowFrame, FillsAScreenOfExactlyTheMaximumWidth) {
    EXPECT_EQ(notchWindowFrame({20, 0, 640, 800}), (Rect{20, 260, 640, 540}));
}

TEST(NotchWindowFrame, IsCentredOnTheScreenAndNotOnThePrimaryOne) {
    EXPECT_EQ(notchWindowFrame({1512, 0, 1920, 1080}), (Rect{2152, 540, 640, 540}));
}

TEST(NotchWindowFrame, FollowsScreensLeftOfAndBelowThePrimaryOne) {
    EXPECT_EQ(notchWindowFrame({-1920, -1080, 1920, 1080}), (Rect{-1280, -540, 640, 540}));
}

TEST(NotchWindowFrame, ReachesBelowAScreenThatIsLowerThanItself) {
    EXPECT_EQ(notchWindowFrame({0, 0, 1000, 400}), (Rect{180, -140, 640, 540}));
}

TEST(NotchWindowFrame, HasNoWidthOnAScreenWithoutAnArea) {
    EXPECT_EQ(notchWindowFrame({50, 60, 0, 0}), (Rect{50, -480, 0, 540}));
}

class NotchWindowTest : public testing::Test {
protected:
    /// Connects `screens`; the first one is the main screen.
    void connect(std::vector<platform::Screen> screens) {
        machine.screens.connected = std::move(screens);
        machine.screens.mainScreen = machine.screens.connected.front();
    }

    test::TestMachine machine;
    FakeOverlay overlay;
};

TEST_F(NotchWindowTest, IsClickThroughFromTheBeginning) {
    const NotchWindow window(overlay, machine.screens);
    EXPECT_THAT(overlay.calls, ElementsAre(FakeOverlay::SetIgnoresMouseEvents{true}));
}

TEST_F(NotchWindowTest, IsPlacedBeforeItIsBroughtToTheFront) {
    connect({{.frame = {0, 0, 1512, 982}, .topSafeAreaInset = 32}});
    NotchWindow window(overlay, machine.screens);
    overlay.calls.clear();
    window.show();
    EXPECT_THAT(overlay.calls, ElementsAre(FakeOverlay::SetFrame{{436, 442, 640, 540}},
                                           FakeOverlay::OrderFront{}));
}

TEST_F(NotchWindowTest, IsPlacedOnTheNotchedScreenAndNotOnTheMainOne) {
    connect(
        {{.frame = {0, 0, 1000, 700}}, {.frame = {1000, 0, 1512, 982}, .topSafeAreaInset = 32}});
    NotchWindow window(overlay, machine.screens);
    overlay.calls.clear();
    window.repositionToNotch();
    EXPECT_THAT(overlay.calls, ElementsAre(FakeOverlay::SetFrame{{1436, 442, 640, 540}}));
}

TEST_F(NotchWindowTest, IsPlacedOnTheMainScreenWhenNoneHasANotch) {
    connect({{.frame = {0, 0, 1920, 1080}}, {.frame = {1920, 0, 1000, 700}}});
    NotchWindow window(overlay, machine.screens);
    overlay.calls.clear();
    window.repositionToNotch();
    EXPECT_THAT(overlay.calls, ElementsAre(FakeOverlay::SetFrame{{640, 540, 640, 540}}));
}

TEST_F(NotchWindowTest, StaysWhereItIsWithoutAScreen) {
    NotchWindow window(overlay, machine.screens);
    overlay.calls.clear();
    window.repositionToNotch();
    EXPECT_THAT(overlay.calls, IsEmpty());
}

TEST_F(NotchWindowTest, IsBroughtToTheFrontAlsoWithoutAScreen) {
    NotchWindow window(overlay, machine.screens);
    overlay.calls.clear();
    window.show();
    EXPECT_THAT(overlay.calls, ElementsAre(FakeOverlay::OrderFront{}));
}

TEST_F(NotchWindowTest, FollowsAScreenThatChanges) {
    connect({{.frame = {0, 0, 1512, 982}, .topSafeAreaInset = 32}});
    NotchWindow window(overlay, machine.screens);
    window.show();
    overlay.calls.clear();
    connect({{.frame = {0, 0, 1800, 1169}, .topSafeAreaInset = 38}});
    window.repositionToNotch();
    EXPECT_THAT(overlay.calls, ElementsAre(FakeOverlay::SetFrame{{580, 629, 640, 540}}));
}

} // namespace
} // namespace brellowind
