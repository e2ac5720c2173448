// SPDX-License-Identifier: MIT

#include "desktops/pill/PillOnCompositor.h"

namespace brellowind::test {
namespace {

class PillTouch : public PillOnCompositor {};

TEST_F(PillTouch, TapsThePill) {
    startSinging();
    EXPECT_TRUE(compositor->tap(background()));
    EXPECT_TRUE(program->becomes("isMinimized"));
    EXPECT_TRUE(program->comesToRest());
    EXPECT_TRUE(compositor->tap(background()));
    EXPECT_TRUE(program->becomes("isMinimized", false));
}

TEST_F(PillTouch, OpensThePanelByTheCoverAndPausesByTheWaveform) {
    startSinging();
    EXPECT_TRUE(compositor->tap(middleOf("artwork")));
    EXPECT_TRUE(program->becomes("isArtExpanded"));
    EXPECT_TRUE(program->comesToRest());
    EXPECT_TRUE(compositor->tap(middleOf("waveform")));
    EXPECT_TRUE(waitUntil([&] { return player->status() == QStringLiteral("Paused"); }));
}

TEST_F(PillTouch, LeavesThePillUnhovered) {
    startSinging();
    EXPECT_TRUE(compositor->tap(background()));
    EXPECT_TRUE(program->becomes("isMinimized"));
    EXPECT_TRUE(program->becomes("hovered", false));
}

TEST_F(PillTouch, BesideThePillReachesTheWindowBelow) {
    below();
    startSinging();
    EXPECT_TRUE(compositor->tap({400, 200}));
    EXPECT_TRUE(below().awaitLine(QStringLiteral("tap 400 200")));
    EXPECT_TRUE(compositor->tap(background()));
    EXPECT_TRUE(program->becomes("isMinimized"));
    EXPECT_TRUE(compositor->tap({600, 400}));
    EXPECT_TRUE(below().awaitLine(QStringLiteral("tap 600 400")));
    EXPECT_EQ(below().lines().filter(QStringLiteral("tap ")).size(), 2);
}

} // namespace
} // namespace brellowind::test
