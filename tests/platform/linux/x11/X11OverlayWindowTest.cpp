#include "platform/linux/x11/PillOnX11.h"

#include "session/Monitors.h"

namespace brellowind::test {
namespace {

using Kind = OtherProgram::Kind;

using X11OverlayWindow = PillOnX11;

TEST_F(X11OverlayWindow, StandsExactlyWhereItIsPutAndBypassesTheWindowManager) {
    const WindowManager windowManager;
    show();
    EXPECT_EQ(other.frame(id()), windowPixels);
    EXPECT_TRUE(other.bypassesWindowManager(id()));
    EXPECT_EQ(other.topLevel(id()), id());
}

TEST_F(X11OverlayWindow, MovesToAnotherScreen) {
    Monitors monitors;
    show();
    monitors.add(QStringLiteral("LEFT"), {0, 0, 480, 800}, true);
    monitors.add(QStringLiteral("RIGHT"), {480, 200, 800, 600}, false);
    ASSERT_TRUE(waitUntil([] { return QGuiApplication::screens().size() == 2; }));
    overlay.setFrame({580, 300, 400, 300}); // at the top of the right one, which begins at y = 0
    EXPECT_TRUE(waitUntil([this] { return other.frame(id()) == QRect(580, 200, 400, 300); }));
    EXPECT_EQ(window.screen()->name(), QStringLiteral("RIGHT"));
    EXPECT_EQ(input(), QRegion(pillInWindow));
}

TEST_F(X11OverlayWindow, TakesNoFocusFromAnApplication) {
    const WindowManager windowManager;
    const auto application = other.open({200, 100, 800, 600}, Kind::managed);
    ASSERT_TRUE(waitUntil([&] { return other.focus() == application; }));
    show();
    other.click(onPill);
    ASSERT_TRUE(waitUntil([this] { return window.presses == 1; }));
    EXPECT_EQ(other.focus(), application);
}

TEST_F(X11OverlayWindow, TakesThePointerWithinItsOutlineOnly) {
    show();
    EXPECT_EQ(input(), QRegion(pillInWindow));
    const auto beneath = openBeneath();
    other.click({539, 30});
    other.click({640, 60});
    EXPECT_EQ(other.clicks(beneath), 2);
    other.click({540, 30});
    other.click({640, 59});
    EXPECT_TRUE(waitUntil([this] { return window.presses == 2; }));
    EXPECT_EQ(other.clicks(beneath), 2);
}

TEST_F(X11OverlayWindow, LetsClicksOnThePillThroughWhileItIgnoresThem) {
    show();
    overlay.setIgnoresMouseEvents(true);
    EXPECT_TRUE(input().isEmpty());
    const auto beneath = openBeneath();
    other.click(onPill);
    EXPECT_EQ(other.clicks(beneath), 1);
    overlay.setIgnoresMouseEvents(false);
    settle();
    other.click(onPill);
    EXPECT_TRUE(waitUntil([this] { return window.presses == 1; }));
    EXPECT_EQ(other.clicks(beneath), 1);
}

TEST_F(X11OverlayWindow, NeitherMovesNorVanishesWhenItsInputSwitches) {
    show();
    const auto events = other.structureEvents(id());
    for (int i = 0; i < 10; ++i) {
        overlay.setIgnoresMouseEvents(true);
        overlay.setIgnoresMouseEvents(false);
    }
    EXPECT_EQ(input(), QRegion(pillInWindow));
    EXPECT_EQ(other.structureEvents(id()), events);
    overlay.setFrame({440, 490, 400, 300});
    EXPECT_TRUE(waitUntil([&] { return other.structureEvents(id()) > events; }));
}

TEST_F(X11OverlayWindow, SendsNothingWhenItIsToldWhatItKnows) {
    show();
    const auto events = other.shapeEvents(id());
    overlay.setIgnoresMouseEvents(false);
    setOutline(pillInWindow);
    EXPECT_EQ(input(), QRegion(pillInWindow));
    EXPECT_EQ(other.shapeEvents(id()), events);
    overlay.setIgnoresMouseEvents(true);
    EXPECT_TRUE(input().isEmpty());
    EXPECT_EQ(other.shapeEvents(id()), events + 1);
}

TEST_F(X11OverlayWindow, TakesThePointerInTheNewOutlineWhenItChanges) {
    show();
    setOutline({50, 0, 300, 200});
    EXPECT_EQ(input(), QRegion(50, 0, 300, 200));
    setOutline({});
    EXPECT_TRUE(input().isEmpty());
}

TEST_F(X11OverlayWindow, IgnoresThePointerUntilItIsToldOtherwise) {
    setOutline(pillInWindow);
    overlay.orderFrontRegardless();
    ASSERT_TRUE(waitUntil([this] { return isShown(); }));
    EXPECT_TRUE(input().isEmpty());
}

TEST_F(X11OverlayWindow, HasItsShapeAgainWhenItsNativeWindowIsMadeAnew) {
    show();
    window.destroy();
    window.create();
    overlay.orderFrontRegardless();
    window.setVisible(true);
    EXPECT_TRUE(waitUntil([this] { return isShown(); }));
    EXPECT_EQ(input(), QRegion(pillInWindow));
    EXPECT_EQ(bounding(), QRegion(pillInWindow));
}

TEST_F(X11OverlayWindow, IsThePillAloneWithoutACompositingManager) {
    other.open({0, 0, 1280, 800}, Kind::managed, red);
    show();
    EXPECT_EQ(bounding(), QRegion(pillInWindow));
    EXPECT_TRUE(waitUntil([this] { return other.pixel(onPill) == green; }));
    EXPECT_EQ(other.pixel({540, 0}), green);
    EXPECT_EQ(other.pixel({739, 59}), green);
    for (const QPoint beside : {QPoint(539, 0), QPoint(740, 0), QPoint(640, 60), besidePill})
        EXPECT_EQ(other.pixel(beside), red);
    setOutline({50, 0, 300, 200});
    EXPECT_TRUE(waitUntil([this] { return other.pixel(besidePill) == green; }));
    setOutline(pillInWindow);
    EXPECT_TRUE(waitUntil([this] { return other.pixel(besidePill) == red; }));
}

TEST_F(X11OverlayWindow, IsTransparentAroundThePillWithACompositingManager) {
    const CompositingManagerProcess compositing(other);
    other.open({0, 0, 1280, 800}, Kind::managed, red);
    show();
    const QRegion whole(QRect(QPoint(), windowPixels.size()));
    EXPECT_TRUE(waitUntil([&] { return bounding() == whole; })); // once the manager is known
    EXPECT_EQ(input(), QRegion(pillInWindow));
    EXPECT_TRUE(waitUntil([this] { return other.pixel(onPill) == green; }));
    EXPECT_TRUE(waitUntil([this] { return other.pixel(besidePill) == red; }));
}

TEST_F(X11OverlayWindow, FollowsTheCompositingManagerThatComesAndGoes) {
    other.open({0, 0, 1280, 800}, Kind::managed, red);
    show();
    const QRegion whole{QRect(QPoint(), windowPixels.size())};
    for (int i = 0; i < 2; ++i) {
        {
            const CompositingManagerProcess compositing(other);
            EXPECT_TRUE(waitUntil([&] { return bounding() == whole; }));
        }
        EXPECT_TRUE(waitUntil([&] { return bounding() == QRegion(pillInWindow); }));
        EXPECT_TRUE(waitUntil([this] { return other.pixel(besidePill) == red; }));
        EXPECT_TRUE(waitUntil([this] { return other.pixel(onPill) == green; }));
    }
    EXPECT_EQ(input(), QRegion(pillInWindow));
}

} // namespace
} // namespace brellowind::test
