// SPDX-License-Identifier: MIT

#include "desktops/Compositor.h"
#include "desktops/PressLog.h"
#include "session/EventLoop.h"

#include <QColor>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

const QColor windowColour(0x33, 0x66, 0xcc);
const QColor panelColour(0xcc, 0x99, 0x33);

TEST(LayerShellTest, PanelStandsAboveWhatWindowsGet) {
    const auto desktop = Compositor::make(QStringLiteral(BRELLOWIND_COMPOSITOR), {});
    auto panel = PressLog::panel(*desktop, panelColour);
    auto window = PressLog::maximized(*desktop, windowColour);
    EXPECT_EQ(panel.size(), QSize(1280, PressLog::panelHeight));
    EXPECT_TRUE(waitUntil([&] { return window.size() == QSize(1280, 720 - 32); }));
    QImage picture;
    EXPECT_TRUE(waitUntil([&] {
        picture = desktop->screenshot();
        return picture.pixelColor(640, 31) == panelColour &&
               picture.pixelColor(640, 32) == windowColour;
    }));

    desktop->click({640, 10});
    EXPECT_EQ(panel.awaitPress().place, QPointF(640, 10));
    desktop->click({640, 100});
    EXPECT_EQ(window.awaitPress().place, QPointF(640, 100 - 32));
    EXPECT_TRUE(panel.takePresses().isEmpty());
}

} // namespace
} // namespace brellowind::test
