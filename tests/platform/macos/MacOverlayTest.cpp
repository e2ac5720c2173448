// SPDX-License-Identifier: MIT

#include "platform/macos/window/MacOverlay.h"

#include "platform/macos/FakeNativeOverlay.h"
#include "platform/macos/WindowEvents.h"
#include "support/FakePointer.h"
#include "support/PrintGeometry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>

namespace brellowind::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MacOverlay : public testing::Test {
protected:
    MacOverlay() {
        Path outline;
        outline.move({100, 0});
        outline.line({200, 0});
        outline.line({200, 50});
        outline.line({100, 50});
        outline.close();
        overlay.emplace(window, pointer, natives.maker());
        overlay->setOutline(outline, {{300, 10, 20, 20}});
    }

    void show() {
        overlay->setFrame(frame);
        overlay->orderFrontRegardless();
    }

    /// A point of the window, in desktop coordinates.
    static Point at(double x, double y) { return {frame.x + x, frame.maxY() - y}; }

    static constexpr Rect frame{436, 442, 640, 540};

    WindowEvents window;
    FakePointer pointer;
    FakeNativeOverlays natives;
    std::optional<platform::MacOverlay> overlay;
};

TEST_F(MacOverlay, IsAFramelessToolThatTakesNoFocus) {
    EXPECT_EQ(window.flags() & Qt::WindowType_Mask, Qt::Tool);
    EXPECT_TRUE(window.flags().testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(window.flags().testFlag(Qt::NoDropShadowWindowHint));
    EXPECT_TRUE(window.flags().testFlag(Qt::WindowDoesNotAcceptFocus));
}

TEST_F(MacOverlay, HasItsFrameBeforeItIsShown) {
    overlay->setFrame(frame);
    EXPECT_EQ(natives.frame, frame);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(MacOverlay, IsShownInFrontInItsFrame) {
    overlay->setFrame(frame);
    natives.calls.clear();
    overlay->orderFrontRegardless();
    EXPECT_TRUE(window.isVisible());
    EXPECT_THAT(natives.calls, ElementsAre("frame", "front"));
}

TEST_F(MacOverlay, IsShownWithoutAFrameWhereThereIsNoScreen) {
    overlay->orderFrontRegardless();
    EXPECT_EQ(natives.frame, Rect());
    EXPECT_TRUE(window.isVisible());
}

TEST_F(MacOverlay, MovesOneNativeWindow) {
    show();
    overlay->setFrame({0, 0, 640, 540});
    EXPECT_EQ(natives.frame, (Rect{0, 0, 640, 540}));
    EXPECT_EQ(natives.views.size(), 1U);
}

TEST_F(MacOverlay, MakesAnotherNativeWindowLikeTheFirst) {
    show();
    pointer.position = at(150, 25);
    overlay->setIgnoresMouseEvents(false);
    window.destroy();
    window.show();
    EXPECT_EQ(natives.views.size(), 2U);
    EXPECT_EQ(natives.frame, frame);
    EXPECT_FALSE(natives.ignoresMouseEvents);
}

TEST_F(MacOverlay, IgnoresTheMouseAtFirst) {
    pointer.position = at(150, 25);
    show();
    EXPECT_TRUE(natives.ignoresMouseEvents);
    EXPECT_THAT(window.events, IsEmpty());
}

TEST_F(MacOverlay, TakesTheMouseWithinItsOutlineAndItsReach) {
    show();
    pointer.position = at(50, 25);
    overlay->setIgnoresMouseEvents(false);
    EXPECT_TRUE(natives.ignoresMouseEvents);
    pointer.move(at(150, 25));
    EXPECT_FALSE(natives.ignoresMouseEvents);
    pointer.move(at(250, 25));
    EXPECT_TRUE(natives.ignoresMouseEvents);
    pointer.move(at(310, 20));
    EXPECT_FALSE(natives.ignoresMouseEvents);
    overlay->setIgnoresMouseEvents(true);
    EXPECT_TRUE(natives.ignoresMouseEvents);
}

TEST_F(MacOverlay, TakesTheMouseAtTheTopEdge) {
    show();
    pointer.position = at(150, 1.0 / 64);
    overlay->setIgnoresMouseEvents(false);
    EXPECT_FALSE(natives.ignoresMouseEvents);
}

TEST_F(MacOverlay, LetsGoOfARestingPointerThatItsOutlineLeaves) {
    show();
    pointer.position = at(150, 25);
    overlay->setIgnoresMouseEvents(false);
    overlay->setOutline({}, {});
    EXPECT_TRUE(natives.ignoresMouseEvents);
}

TEST_F(MacOverlay, TellsItsWindowOfMovements) {
    show();
    pointer.position = at(150, 25);
    overlay->setIgnoresMouseEvents(false);
    pointer.move(at(151, 26));
    pointer.move(at(152, 27));
    pointer.move(at(20, 400));
    pointer.move(at(21, 401));
    EXPECT_THAT(window.events,
                ElementsAre("enter 150 25", "move 150 25", "move 151 26", "move 152 27", "leave"));
}

TEST_F(MacOverlay, IsLeftWhenItIgnoresTheMouse) {
    show();
    pointer.position = at(150, 25);
    overlay->setIgnoresMouseEvents(false);
    window.events.clear();
    overlay->setIgnoresMouseEvents(true);
    EXPECT_THAT(window.events, ElementsAre("leave"));
}

TEST_F(MacOverlay, WatchesThePointerOnlyWhileItTakesTheMouse) {
    show();
    EXPECT_EQ(pointer.monitorCount(), 0U);
    overlay->setIgnoresMouseEvents(false);
    overlay->setIgnoresMouseEvents(false);
    EXPECT_EQ(pointer.monitorCount(), 1U);
    overlay->setIgnoresMouseEvents(true);
    EXPECT_EQ(pointer.monitorCount(), 0U);
}

TEST_F(MacOverlay, IsNotHoveredWhileCovered) {
    show();
    pointer.position = at(150, 25);
    overlay->setIgnoresMouseEvents(false);
    window.events.clear();
    overlay->setCovered(true);
    pointer.move(at(151, 26));
    EXPECT_FALSE(natives.ignoresMouseEvents); // a press must not fall through
    EXPECT_THAT(window.events, ElementsAre("leave"));
    overlay->setCovered(false);
    EXPECT_THAT(window.events, ElementsAre("leave", "enter 151 26", "move 151 26"));
}

} // namespace
} // namespace brellowind::test
