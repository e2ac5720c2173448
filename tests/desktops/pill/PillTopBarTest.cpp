// SPDX-License-Identifier: MIT

#include "desktops/pill/PillOnCompositor.h"

namespace brellowind::test {
namespace {

/// GNOME Shell's own panel, with the clock in its middle.
class PillTopBar : public PillOnCompositor {
protected:
    static bool showsClock(const Picture& picture) {
        constexpr int height = 24;
        for (int x = 600; x < 680; ++x)
            for (int y = 0; y < height; ++y)
                if (picture.at(QPointF(x, y)).lightness() > 128)
                    return true;
        return false;
    }
};

TEST_F(PillTopBar, IsBelowThePill) {
    EXPECT_TRUE(shows("top-bar", showsClock));
    startSinging();
    EXPECT_TRUE(
        shows("above-top-bar", [](const Picture& picture) { return !showsClock(picture); }));
    EXPECT_TRUE(hoverPill());
    compositor->click(background());
    EXPECT_TRUE(program->becomes("isMinimized"));
}

} // namespace
} // namespace brellowind::test
