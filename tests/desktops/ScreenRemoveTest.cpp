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

TEST(ScreenRemoveTest, MovesItsWindowsFromAScreenThatGoes) {
    const auto desktop = Compositor::make(name, {});
    const auto first = desktop->screens().value(0).name;
    const auto added = desktop->addScreen();
    EXPECT_TRUE(desktop->removeScreen(added));
    EXPECT_EQ(desktop->screens().size(), 1);
    EXPECT_EQ(desktop->addScreen(), added);
    auto window = PressLog::fullScreen(*desktop, colour);
    EXPECT_TRUE(desktop->removeScreen(first));
    ASSERT_EQ(desktop->screens().size(), 1);
    const auto left = desktop->screens()[0].geometry.center();
    EXPECT_TRUE(
        waitUntil([&] { return desktop->screenshot(added).pixelColor(640, 360) == colour; }));
    desktop->click(left);
    EXPECT_EQ(window.awaitPress().place, QPointF(left - desktop->screens()[0].geometry.topLeft()));
}

} // namespace
} // namespace brellowind::test
