// SPDX-License-Identifier: MIT

#include "desktops/pill/PillOnCompositor.h"

namespace brellowind::test {
namespace {

/// On a compositor that gives the focus on request only.
class PillFocusKept : public PillOnCompositor {
protected:
    PillFocusKept() { EXPECT_TRUE(below().awaitLine(QStringLiteral("keyboard enter"))); }

    bool windowKeptTheKeyboard() {
        return !below().lines().contains(QStringLiteral("keyboard leave"));
    }
};

TEST_F(PillFocusKept, WhileThePillIsHoveredAndTapped) {
    startSinging();
    enterPill();
    compositor->click(background());
    EXPECT_TRUE(program->becomes("isMinimized"));
    EXPECT_TRUE(program->comesToRest());
    compositor->click(background());
    EXPECT_TRUE(program->becomes("isMinimized", false));
    EXPECT_TRUE(program->comesToRest());
    compositor->click(middleOf("artwork"));
    EXPECT_TRUE(program->becomes("isArtExpanded"));
    leavePill();
    EXPECT_TRUE(windowKeptTheKeyboard());
}

} // namespace
} // namespace brellowind::test
