// SPDX-License-Identifier: MIT

#include "platform/linux/x11/PillOnX11.h"

#include "platform/linux/screens/QtScreens.h"
#include "platform/linux/x11/X11Pointer.h"
#include "session/x11/Monitors.h"
#include "support/PrintGeometry.h"

namespace brellowind::test {
namespace {

/// Two pixels a point on the server's own monitor, of 640 × 400 points, and on RIGHT; one on LEFT.
class ScaledScreen : public PillOnX11 {
protected:
    platform::X11Pointer pointer{mainLoop};
    platform::QtScreens screens{mainLoop};
};

TEST_F(ScaledScreen, IsMeasuredInPoints) {
    ASSERT_TRUE(screens.main());
    EXPECT_EQ(screens.main()->frame, (Rect{0, 0, 640, 400}));
}

TEST_F(ScaledScreen, HasThePointerBetweenThePoints) {
    person.pointAt({0, 0});
    EXPECT_EQ(pointer.location(), (Point{0.25, 399.75}));
    person.pointAt({1279, 799});
    EXPECT_EQ(pointer.location(), (Point{639.75, 0.25}));
}

TEST_F(ScaledScreen, HasTheWindowAndItsShapeInPixels) {
    overlay.setIgnoresMouseEvents(false);
    overlay.setFrame({120, 250, 400, 150});
    setOutline({100, 0, 200, 60});
    overlay.orderFrontRegardless();
    ASSERT_TRUE(waitUntil([this] { return isShown(); }));
    EXPECT_EQ(x.geometry(id()), QRect(240, 0, 800, 300));
    EXPECT_EQ(input(), QRegion(200, 0, 400, 120));
    EXPECT_EQ(bounding(), QRegion(200, 0, 400, 120));
}

TEST_F(ScaledScreen, TakesTheWindowInBesideAScreenOfAnotherScale) {
    Monitors monitors(display);
    monitors.add(QStringLiteral("LEFT"), {0, 0, 480, 800}, true);
    monitors.add(QStringLiteral("RIGHT"), {480, 200, 800, 600}, false);
    ASSERT_TRUE(waitUntil([this] { return screens.screens().size() == 2; }));
    EXPECT_EQ(screens.screens()[0].frame, (Rect{0, 0, 480, 800}));
    EXPECT_EQ(screens.screens()[1].frame, (Rect{480, 300, 400, 300}));
    person.pointAt({480, 200});
    EXPECT_EQ(pointer.location(), (Point{480.25, 599.75}));

    overlay.setIgnoresMouseEvents(false);
    setOutline({100, 0, 200, 60});
    overlay.setFrame({480, 450, 400, 150});
    overlay.orderFrontRegardless();
    EXPECT_TRUE(waitUntil([this] { return isShown(); }));
    EXPECT_TRUE(waitUntil([this] { return x.geometry(id()) == QRect(480, 200, 800, 300); }));
    EXPECT_EQ(input(), QRegion(200, 0, 400, 120));

    overlay.setFrame({40, 650, 400, 150});
    EXPECT_TRUE(waitUntil([this] { return x.geometry(id()) == QRect(40, 0, 400, 150); }));
    EXPECT_TRUE(waitUntil([this] { return input() == QRegion(100, 0, 200, 60); }));
}

} // namespace
} // namespace brellowind::test
