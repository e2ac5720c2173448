// SPDX-License-Identifier: MIT

#include "desktops/Compositor.h"

#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

const auto name = QStringLiteral(BRELLOWIND_COMPOSITOR);

TEST(ScreenAddTest, AddsAScreenAtTheRight) {
    const auto desktop = Compositor::make(name, {.size = {1000, 600}});
    const auto added = desktop->addScreen();
    const auto screens = desktop->screens();
    ASSERT_EQ(screens.size(), 2);
    EXPECT_EQ(screens[0].geometry, QRect(0, 0, 1000, 600));
    EXPECT_EQ(screens[1].geometry.topLeft(), QPoint(1000, 0));
    EXPECT_EQ(desktop->screenshot(added).size(), screens[1].geometry.size());
}

} // namespace
} // namespace brellowind::test
