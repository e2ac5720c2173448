// SPDX-License-Identifier: MIT

#include "platform/macos/FakeNativeOverlay.h"
#include "platform/macos/WindowEvents.h"
#include "platform/macos/window/MacWindowSystem.h"
#include "support/FakePointer.h"
#include "support/FakeScreens.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A menu of 200 × 90 over an overlay in the screen's corner.
class MacPopup : public testing::Test {
protected:
    MacPopup() {
        menu.resize(200, 90);
        window.setGeometry(0, 0, 640, 540);
        overlay = system.makeOverlay(window);
        overlay->setFrame({0, screen.height() - 540.0, 640, 540});
        Path outline;
        outline.move({0, 0});
        outline.line({640, 0});
        outline.line({640, 50});
        outline.line({0, 50});
        outline.close();
        overlay->setOutline(outline, {});
        overlay->orderFrontRegardless();
    }

    void popUp(Point at = {20, 30}) {
        system.popUp({.window = menu, .overlay = window, .at = at, .cornerRadius = 10});
    }

    static void press(QWindow& receiver, QPointF at) {
        QMouseEvent press(QEvent::MouseButtonPress, at, receiver.mapToGlobal(at), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&receiver, &press);
    }

    Point desktop(double x, double y) const { return {x, screen.height() - y}; }

    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    int activations = 0;
    FakeScreens screens;
    FakePointer pointer;
    FakeNativeOverlays natives;
    platform::MacWindowSystem system{{.screens = screens,
                                      .pointer = pointer,
                                      .makeOverlay = natives.maker(),
                                      .activateProgram = [this] { ++activations; }}};
    WindowEvents menu;
    WindowEvents window;
    std::unique_ptr<platform::Overlay> overlay;
};

TEST_F(MacPopup, IsShownWhereItIsWantedAboveTheOverlay) {
    popUp();
    EXPECT_TRUE(menu.isVisible());
    EXPECT_EQ(menu.position(), window.position() + QPoint(20, 30));
    EXPECT_EQ(menu.transientParent(), &window);
}

TEST_F(MacPopup, StaysOnTheScreen) {
    popUp({5000, 5000});
    EXPECT_EQ(menu.geometry().bottomRight(), screen.bottomRight());
}

TEST_F(MacPopup, IsClosedByAPressOnTheOverlayWhichDoesNothingElse) {
    popUp();
    window.events.clear();
    press(window, {10, 10});
    EXPECT_FALSE(menu.isVisible());
    EXPECT_THAT(window.events, IsEmpty());
    press(window, {10, 10});
    EXPECT_THAT(window.events, ElementsAre("press 10 10"));
}

TEST_F(MacPopup, HasPressesOnIt) {
    popUp();
    press(menu, {5, 6});
    EXPECT_TRUE(menu.isVisible());
    EXPECT_THAT(menu.events, ElementsAre("press 5 6"));
}

TEST_F(MacPopup, IsToldOfMovements) {
    popUp();
    pointer.move(desktop(25, 37));
    pointer.move(desktop(26, 38));
    pointer.move(desktop(300, 300));
    EXPECT_THAT(menu.events, ElementsAre("enter 5 7", "move 5 7", "move 6 8", "leave"));
}

TEST_F(MacPopup, CoversTheOverlayUntilItIsClosed) {
    pointer.position = desktop(30, 40);
    overlay->setIgnoresMouseEvents(false);
    window.events.clear();
    popUp();
    EXPECT_THAT(window.events, ElementsAre("leave"));
    menu.close();
    EXPECT_THAT(window.events, ElementsAre("leave", "enter 30 40", "move 30 40"));
}

TEST_F(MacPopup, WatchesThePointerOnlyWhileItIsShown) {
    popUp();
    popUp();
    EXPECT_EQ(pointer.monitorCount(), 1U);
    menu.close();
    EXPECT_EQ(pointer.monitorCount(), 0U);
}

TEST_F(MacPopup, MayOutliveTheOverlay) {
    popUp();
    overlay.reset();
    menu.close();
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(MacPopup, GivesTheFocusToAWindowThatTakesIt) {
    QRasterWindow settings;
    settings.show();
    QRasterWindow other;
    other.show();
    const auto hasFocus = [](const QWindow& which) {
        return QTest::qWaitFor([&] { return QGuiApplication::focusWindow() == &which; }, 2000);
    };
    ASSERT_TRUE(hasFocus(other));
    other.setFlag(Qt::WindowDoesNotAcceptFocus);
    system.activate();
    EXPECT_EQ(activations, 1);
    EXPECT_TRUE(hasFocus(settings));
}

} // namespace
} // namespace brellowind::test
