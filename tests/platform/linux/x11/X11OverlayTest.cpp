// SPDX-License-Identifier: MIT

#include "platform/linux/x11/PillOnX11.h"

#include "session/x11/Monitors.h"
#include "session/x11/WindowWatch.h"

namespace brellowind::test {
namespace {

using Kind = PlainWindow::Kind;

using X11Overlay = PillOnX11;

TEST_F(X11Overlay, StandsExactlyWhereItIsPutAndBypassesTheWindowManager) {
    const WindowManager windowManager(x);
    show();
    EXPECT_EQ(x.geometry(id()), windowPixels);
    EXPECT_TRUE(x.overridesRedirect(id()));
    EXPECT_EQ(x.frameOf(id()), id());
}

TEST_F(X11Overlay, MovesToAnotherScreen) {
    Monitors monitors(display);
    show();
    monitors.add(QStringLiteral("LEFT"), {0, 0, 480, 800}, true);
    monitors.add(QStringLiteral("RIGHT"), {480, 200, 800, 600}, false);
    ASSERT_TRUE(waitUntil([] { return QGuiApplication::screens().size() == 2; }));
    overlay.setFrame({580, 300, 400, 300}); // at the top of the right one, which begins at y = 0
    EXPECT_TRUE(waitUntil([this] { return x.geometry(id()) == QRect(580, 200, 400, 300); }));
    EXPECT_EQ(window.screen()->name(), QStringLiteral("RIGHT"));
    EXPECT_EQ(input(), QRegion(pillInWindow));
}

TEST_F(X11Overlay, TakesNoFocusFromAnApplication) {
    const WindowManager windowManager(x);
    const PlainWindow application(display, {200, 100, 800, 600}, Kind::managed);
    ASSERT_TRUE(waitUntil([&] { return x.focus() == application.id(); }));
    show();
    person.pressAt(onPill);
    ASSERT_TRUE(waitUntil([this] { return window.presses == 1; }));
    EXPECT_EQ(x.focus(), application.id());
}

TEST_F(X11Overlay, TakesThePointerWithinItsOutlineOnly) {
    show();
    EXPECT_EQ(input(), QRegion(pillInWindow));
    auto& beneath = openBeneath();
    person.pressAt({539, 30});
    person.pressAt({640, 60});
    EXPECT_EQ(beneath.presses(), 2);
    person.pressAt({540, 30});
    person.pressAt({640, 59});
    EXPECT_TRUE(waitUntil([this] { return window.presses == 2; }));
    EXPECT_EQ(beneath.presses(), 0);
}

TEST_F(X11Overlay, LetsClicksOnThePillThroughWhileItIgnoresThem) {
    show();
    overlay.setIgnoresMouseEvents(true);
    EXPECT_TRUE(input().isEmpty());
    auto& beneath = openBeneath();
    person.pressAt(onPill);
    EXPECT_EQ(beneath.presses(), 1);
    overlay.setIgnoresMouseEvents(false);
    settle();
    person.pressAt(onPill);
    EXPECT_TRUE(waitUntil([this] { return window.presses == 1; }));
    EXPECT_EQ(beneath.presses(), 0);
}

TEST_F(X11Overlay, NeitherMovesNorVanishesWhenItsInputSwitches) {
    show();
    WindowWatch watch(display, id());
    for (int i = 0; i < 10; ++i) {
        overlay.setIgnoresMouseEvents(true);
        overlay.setIgnoresMouseEvents(false);
    }
    EXPECT_EQ(input(), QRegion(pillInWindow));
    EXPECT_EQ(watch.structureEvents(), 0);
    overlay.setFrame({440, 490, 400, 300});
    EXPECT_TRUE(waitUntil([&] { return watch.structureEvents() > 0; }));
}

TEST_F(X11Overlay, SendsNothingWhenItIsToldWhatItKnows) {
    show();
    WindowWatch watch(display, id());
    overlay.setIgnoresMouseEvents(false);
    setOutline(pillInWindow);
    EXPECT_EQ(input(), QRegion(pillInWindow));
    EXPECT_EQ(watch.shapeEvents(), 0);
    overlay.setIgnoresMouseEvents(true);
    EXPECT_TRUE(input().isEmpty());
    EXPECT_EQ(watch.shapeEvents(), 1);
}

TEST_F(X11Overlay, TakesThePointerInTheNewOutlineWhenItChanges) {
    show();
    setOutline({50, 0, 300, 200});
    EXPECT_EQ(input(), QRegion(50, 0, 300, 200));
    setOutline({});
    EXPECT_TRUE(input().isEmpty());
}

TEST_F(X11Overlay, TakesThePointerInItsReachToo) {
    const CompositingManager compositing(x);
    show();
    setOutline(pillInWindow, {{90, 0, 220, 60}, {150, 50, 100, 20}});
    const QRegion whole = QRegion(90, 0, 220, 60) | QRegion(150, 50, 100, 20);
    EXPECT_TRUE(waitUntil([&] { return input() == whole; }));
    overlay.setIgnoresMouseEvents(true);
    EXPECT_TRUE(input().isEmpty());
}

TEST_F(X11Overlay, ReachesNoFurtherThanThePillWithoutACompositingManager) {
    show();
    setOutline(pillInWindow, {{90, 0, 220, 60}});
    EXPECT_EQ(bounding(), QRegion(pillInWindow)) << "it would be black there";
    EXPECT_EQ(input(), QRegion(pillInWindow));
}

TEST_F(X11Overlay, IgnoresThePointerUntilItIsToldOtherwise) {
    setOutline(pillInWindow);
    overlay.orderFrontRegardless();
    ASSERT_TRUE(waitUntil([this] { return isShown(); }));
    EXPECT_TRUE(input().isEmpty());
}

TEST_F(X11Overlay, HasItsShapeAgainWhenItsNativeWindowIsMadeAnew) {
    show();
    window.destroy();
    window.create();
    overlay.orderFrontRegardless();
    window.setVisible(true);
    EXPECT_TRUE(waitUntil([this] { return isShown(); }));
    EXPECT_EQ(input(), QRegion(pillInWindow));
    EXPECT_EQ(bounding(), QRegion(pillInWindow));
}

TEST_F(X11Overlay, IsThePillAloneWithoutACompositingManager) {
    const PlainWindow behind(display, {0, 0, 1280, 800}, Kind::managed);
    show();
    EXPECT_EQ(bounding(), QRegion(pillInWindow));
    EXPECT_TRUE(waitUntil([this] { return x.pixel(onPill) == green; }));
    EXPECT_EQ(x.pixel({540, 0}), green);
    EXPECT_EQ(x.pixel({739, 59}), green);
    for (const QPoint beside : {QPoint(539, 0), QPoint(740, 0), QPoint(640, 60), besidePill})
        EXPECT_EQ(x.pixel(beside), PlainWindow::colour());
    setOutline({50, 0, 300, 200});
    EXPECT_TRUE(waitUntil([this] { return x.pixel(besidePill) == green; }));
    setOutline(pillInWindow);
    EXPECT_TRUE(waitUntil([this] { return x.pixel(besidePill) == PlainWindow::colour(); }));
}

TEST_F(X11Overlay, IsTransparentAroundThePillWithACompositingManager) {
    const CompositingManager compositing(x);
    const PlainWindow behind(display, {0, 0, 1280, 800}, Kind::managed);
    show();
    const QRegion whole(QRect(QPoint(), windowPixels.size()));
    EXPECT_TRUE(waitUntil([&] { return bounding() == whole; })); // once the manager is known
    EXPECT_EQ(input(), QRegion(pillInWindow));
    EXPECT_TRUE(waitUntil([this] { return x.pixel(onPill) == green; }));
    EXPECT_TRUE(waitUntil([this] { return x.pixel(besidePill) == PlainWindow::colour(); }));
}

TEST_F(X11Overlay, FollowsTheCompositingManagerThatComesAndGoes) {
    const PlainWindow behind(display, {0, 0, 1280, 800}, Kind::managed);
    show();
    const QRegion whole{QRect(QPoint(), windowPixels.size())};
    for (int i = 0; i < 2; ++i) {
        {
            const CompositingManager compositing(x);
            EXPECT_TRUE(waitUntil([&] { return bounding() == whole; }));
        }
        EXPECT_TRUE(waitUntil([&] { return bounding() == QRegion(pillInWindow); }));
        EXPECT_TRUE(waitUntil([this] { return x.pixel(besidePill) == PlainWindow::colour(); }));
        EXPECT_TRUE(waitUntil([this] { return x.pixel(onPill) == green; }));
    }
    EXPECT_EQ(input(), QRegion(pillInWindow));
}

} // namespace
} // namespace brellowind::test
