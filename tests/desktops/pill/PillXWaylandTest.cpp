// SPDX-License-Identifier: MIT

#include "desktops/pill/PillOnCompositor.h"

namespace brellowind::test {
namespace {

using std::chrono::milliseconds;

class PillOnXWayland : public PillOnCompositor {
protected:
    QPointF farFromPill() const { return screen().bottomRight() - QPoint(5, 5); }
};

TEST_F(PillOnXWayland, IsLeftByAPointerThatJumpsAway) {
    startSinging();
    enterPill();
    compositor->movePointerTo(farFromPill());
    EXPECT_TRUE(program->becomes("hovered", false));
}

TEST_F(PillOnXWayland, StaysHoveredUnderAPointerThatRests) {
    startSinging();
    enterPill();
    runFor(milliseconds(3500));
    EXPECT_TRUE(program->is("hovered"));
}

TEST_F(PillOnXWayland, IsHoveredAgainByTheNextMotionAfterTyping) {
    startSinging();
    enterPill();
    constexpr int leftShift = 42;
    runFor(milliseconds(500));
    compositor->type(leftShift);
    EXPECT_TRUE(program->becomes("hovered", false));
    compositor->movePointerBy({1, 0});
    EXPECT_TRUE(program->becomes("hovered"));
}

/// XWayland knows only the pointer's last position over an X window and reports it to new windows.
TEST_F(PillOnXWayland, IsNotHoveredWhereThePointerOnceWas) {
    startSinging();
    enterPill();
    compositor->movePointerTo(farFromPill());
    program.reset();
    startSinging();
    runFor(milliseconds(500));
    EXPECT_FALSE(program->is("hovered"));
    EXPECT_TRUE(hoverPill());
}

TEST_F(PillOnXWayland, LetsClicksBesideItThroughFromEveryStart) {
    below();
    for (int start = 0; start < 16; ++start) {
        player.reset();
        program.reset();
        startSinging();
        for (const QPointF beside : {area().center(), area().bottomLeft() + QPointF(5, -5)}) {
            compositor->click(beside);
            EXPECT_EQ(below().awaitPress().place, beside) << "start " << start;
        }
        compositor->click(background(), 0x112);
        EXPECT_TRUE(hoverPill()) << "start " << start;
        compositor->movePointerBy({0, area().height()});
        EXPECT_TRUE(program->becomes("hovered", false)) << "start " << start;
        EXPECT_TRUE(below().takePresses().isEmpty()) << "start " << start;
    }
}

class PillOnXWaylandAtAFractionalScale : public PillOnCompositor {
protected:
    static constexpr double scale = 1.5;

    PillOnXWaylandAtAFractionalScale() : PillOnCompositor({.scale = scale}) {}
};

/// The compositor stretches the windows of X clients, so that the pill is not sharp.
TEST_F(PillOnXWaylandAtAFractionalScale, HasItsPlaceAndSizeAndFindsThePointer) {
    below();
    startSinging();
    EXPECT_TRUE(
        shows("rest-at-1.5", [&](const Picture& picture) { return isInPlace(picture, scale); }));
    enterPill();
    compositor->click(background());
    EXPECT_TRUE(program->becomes("isMinimized"));
    const QPointF beside = area().center();
    compositor->click(beside);
    EXPECT_EQ(below().awaitPress().place, beside);
}

} // namespace
} // namespace brellowind::test
