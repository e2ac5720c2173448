// SPDX-License-Identifier: MIT

#include "platform/linux/x11/X11Pointer.h"

#include "platform/linux/x11/PillOnX11.h"
#include "support/PrintGeometry.h"

namespace brellowind::test {
namespace {

class X11Pointer : public PillOnX11 {
protected:
    void SetUp() override {
        pointer.location(); // a round trip, after which the events are selected
        person.pointAt({1000, 700});
        ASSERT_TRUE(waitUntil([this] { return calls > 0; }));
        calls = 0;
    }

    /// Longer than the rest after which the server tells that the pointer is used again.
    static constexpr std::chrono::milliseconds rest{200};

    platform::X11Pointer pointer{mainLoop};
    int calls = 0;
    Subscription monitor = pointer.addMonitor([this] { ++calls; });
};

TEST_F(X11Pointer, IsAtTheMiddleOfItsPixelInDesktopCoordinates) {
    person.pointAt({10, 20});
    EXPECT_EQ(pointer.location(), (Point{10.5, 779.5}));
    person.pointAt({1279, 799});
    EXPECT_EQ(pointer.location(), (Point{1279.5, 0.5}));
}

TEST_F(X11Pointer, TellsOfMovementsOverNothing) {
    person.pointAt({1010, 700});
    EXPECT_TRUE(waitUntil([this] { return calls == 1; }));
    person.pointAt({1011, 700});
    EXPECT_TRUE(waitUntil([this] { return calls == 2; }));
}

TEST_F(X11Pointer, TellsOfMovementsOverAWindowThatKeepsThemToItself) {
    PlainWindow grabbing(display, {900, 500, 300, 300}, PlainWindow::Kind::unmanaged);
    grabbing.grabPointer();
    person.pointAt({1010, 700});
    EXPECT_TRUE(waitUntil([this] { return calls == 1; }));
}

TEST_F(X11Pointer, TellsOfMovementsOverThePillBeforeThePillHears) {
    show();
    int heardBefore = -1;
    window.onPointer = [&] { heardBefore = calls; };
    person.pointAt(onPill);
    EXPECT_TRUE(waitUntil([&] { return heardBefore >= 0; }));
    EXPECT_GE(heardBefore, 1);
    EXPECT_EQ(pointer.location(), (Point{640.5, 769.5}));
}

TEST_F(X11Pointer, TellsOfMovementsOverTheWindowBesideThePill) {
    show();
    person.pointAt(besidePill);
    EXPECT_TRUE(waitUntil([this] { return calls == 1; }));
}

TEST_F(X11Pointer, TellsOfMovementsOverAClickThroughPill) {
    show();
    overlay.setIgnoresMouseEvents(true);
    settle();
    person.pointAt(onPill);
    EXPECT_TRUE(waitUntil([this] { return calls == 1; }));
}

TEST_F(X11Pointer, TellsOfAHundredMovementsThatComeTogetherAFewTimesAtMost) {
    for (int column = 100; column < 200; ++column)
        person.pointAt({column, 700});
    EXPECT_TRUE(waitUntil([this] { return calls > 0; }));
    runFor(std::chrono::milliseconds(50));
    EXPECT_LT(calls, 10);
    EXPECT_EQ(pointer.location(), (Point{199.5, 99.5}));
}

TEST_F(X11Pointer, IsSilentWhileItRests) {
    runFor(rest);
    EXPECT_EQ(calls, 0);
}

TEST_F(X11Pointer, TellsOfAPointerThatAProgramPutsElsewhere) {
    for (const int column : {200, 640}) {
        calls = 0;
        runFor(rest);
        const auto place = static_cast<std::int16_t>(column);
        xcb_warp_pointer(x.get(), XCB_NONE, x.root(), 0, 0, 0, 0, place, 300);
        x.finish();
        EXPECT_TRUE(waitUntil([this] { return calls == 1; })) << column;
        EXPECT_EQ(pointer.location(), (Point{column + 0.5, 499.5}));
    }
}

TEST_F(X11Pointer, TellsOfNoMovementWhenAButtonIsPressed) {
    runFor(rest);
    calls = 0;
    person.press();
    react();
    EXPECT_EQ(calls, 0);
}

TEST_F(X11Pointer, TellsNobodyWhoHasLeft) {
    monitor.cancel();
    int still = 0;
    const auto stays = pointer.addMonitor([&] { ++still; });
    person.pointAt({1010, 700});
    EXPECT_TRUE(waitUntil([&] { return still == 1; }));
    EXPECT_EQ(calls, 0);
}

TEST_F(X11Pointer, LetsAHandlerRemoveItsOwnMonitor) {
    int own = 0;
    Subscription once;
    once = pointer.addMonitor([&] {
        ++own;
        once.cancel();
    });
    person.pointAt({1010, 700});
    EXPECT_TRUE(waitUntil([this] { return calls == 1; }));
    person.pointAt({1020, 700});
    EXPECT_TRUE(waitUntil([this] { return calls == 2; }));
    EXPECT_EQ(own, 1);
}

TEST_F(X11Pointer, TellsOfMovementsOverAWindowInAFrame) {
    const WindowManager windowManager(x);
    QRasterWindow settings;
    settings.setGeometry(100, 300, 300, 200);
    settings.show();
    const auto id = static_cast<xcb_window_t>(settings.winId());
    ASSERT_TRUE(waitUntil([&] { return x.frameOf(id) != id && x.isViewable(id); }));
    runFor(std::chrono::milliseconds(0));
    calls = 0;
    person.pointAt(x.geometry(id).center());
    EXPECT_TRUE(waitUntil([this] { return calls == 1; }));
}

} // namespace
} // namespace brellowind::test
