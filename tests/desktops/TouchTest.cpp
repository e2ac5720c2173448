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

TEST(TouchTest, TapsOnTheWindow) {
    const auto desktop = Compositor::make(name, {});
    auto window = PressLog::fullScreen(*desktop, colour);
    EXPECT_TRUE(desktop->tap({200, 150}));
    EXPECT_TRUE(window.awaitLine(QStringLiteral("tap 200 150")));
}

} // namespace
} // namespace brellowind::test
