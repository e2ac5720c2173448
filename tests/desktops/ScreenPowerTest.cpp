// SPDX-License-Identifier: MIT

#include "desktops/Compositor.h"
#include "desktops/PressLog.h"
#include "session/EventLoop.h"

#include <QColor>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

const QColor colour(0x33, 0x66, 0xcc);
const auto name = QStringLiteral(BRELLOWIND_COMPOSITOR);

TEST(ScreenPowerTest, ShowsItsWindowsAgainWhenItsScreensWereOff) {
    const auto desktop = Compositor::make(name, {});
    auto window = PressLog::fullScreen(*desktop, colour);
    EXPECT_TRUE(desktop->setScreensOn(false));
    EXPECT_TRUE(desktop->setScreensOn(true));
    EXPECT_TRUE(waitUntil([&] { return desktop->screenshot().pixelColor(640, 360) == colour; }));
    desktop->click({200, 150});
    EXPECT_EQ(window.awaitPress().place, QPointF(200, 150));
}

} // namespace
} // namespace brellowind::test
