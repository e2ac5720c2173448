// SPDX-License-Identifier: MIT

#include "desktops/pill/PillOnCompositor.h"

namespace brellowind::test {
namespace {

constexpr int letterA = 30;

/// The keyboard focus stays with the window.
class PillFocus : public PillOnCompositor {
protected:
    PillFocus() { EXPECT_TRUE(below().awaitLine(QStringLiteral("keyboard enter"))); }

    bool windowHasTheKeyboard() {
        const auto& lines = below().lines();
        return lines.lastIndexOf(QStringLiteral("keyboard enter")) >
               lines.lastIndexOf(QStringLiteral("keyboard leave"));
    }

    bool keysReachTheWindow() {
        EXPECT_TRUE(waitUntil([&] { return windowHasTheKeyboard(); }));
        compositor->type(letterA);
        return below().awaitLine(QStringLiteral("key %1").arg(letterA));
    }
};

TEST_F(PillFocus, StaysWithTheWindowWhenThePillAppears) {
    startSinging();
    EXPECT_TRUE(keysReachTheWindow());
}

TEST_F(PillFocus, StaysWithTheWindowWhileThePillIsHoveredAndTapped) {
    startSinging();
    enterPill();
    EXPECT_TRUE(keysReachTheWindow());
    compositor->click(background());
    EXPECT_TRUE(program->becomes("isMinimized"));
    EXPECT_TRUE(program->comesToRest()); // some compositors give it the focus briefly
    EXPECT_TRUE(keysReachTheWindow());
    compositor->click(background());
    EXPECT_TRUE(program->becomes("isMinimized", false));
    leavePill();
    EXPECT_TRUE(keysReachTheWindow());
}

TEST_F(PillFocus, StaysWithTheWindowWhileThePanelOpensAndCloses) {
    startSinging();
    enterPill();
    compositor->click(middleOf("artwork"));
    EXPECT_TRUE(program->becomes("isArtExpanded"));
    EXPECT_TRUE(program->comesToRest());
    EXPECT_TRUE(keysReachTheWindow());
    compositor->click(middleOf("artwork"));
    EXPECT_TRUE(program->becomes("isArtExpanded", false));
    EXPECT_TRUE(program->comesToRest());
    EXPECT_TRUE(keysReachTheWindow());
}

TEST_F(PillFocus, ReturnsToTheWindowWhenTheMenuCloses) {
    startSinging();
    openMenu();
    constexpr int letterB = 48;
    compositor->type(letterB);
    constexpr int escape = 1;
    compositor->type(escape);
    EXPECT_TRUE(menuCloses());
    EXPECT_TRUE(keysReachTheWindow());
    EXPECT_FALSE(below().lines().contains(QStringLiteral("key %1").arg(letterB)));
    EXPECT_FALSE(below().lines().contains(QStringLiteral("key %1").arg(escape)));
}

} // namespace
} // namespace brellowind::test
