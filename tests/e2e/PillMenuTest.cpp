// SPDX-License-Identifier: MIT

#include "e2e/PillFixture.h"

namespace brellowind::test {
namespace {

class PillMenu : public PillOnDesktop {
protected:
    bool closes() {
        return waitUntil([&] { return program->menu() == 0; });
    }
};

TEST_F(PillMenu, OpensWhereThePointerIs) {
    startSinging();
    const QPoint place = openMenu();
    EXPECT_EQ(x.geometry(program->menu()).topLeft(), place);
    EXPECT_FALSE(program->is("isMinimized")) << "a secondary press is no tap";
}

TEST_F(PillMenu, StaysWhenThePointerLeavesThePillForIt) {
    startSinging();
    openMenu();
    person.pointAt(middleOfEntry("Quit Brellowind"));
    EXPECT_TRUE(program->becomes("hovered", false));
    EXPECT_NE(program->menu(), 0U);
}

TEST_F(PillMenu, ClosesOnAPressElsewhere) {
    startSinging();
    openMenu();
    person.pressAt({100, 700});
    EXPECT_TRUE(closes());
    EXPECT_TRUE(program->process().isRunning());
}

TEST_F(PillMenu, ClosesOnTheEscapeKey) {
    startSinging();
    openMenu();
    person.pressEscape();
    EXPECT_TRUE(closes());
}

TEST_F(PillMenu, HasRoundCornersWithoutACompositingManager) {
    startSinging();
    below();
    const QPoint place = openMenu();
    EXPECT_TRUE(waitUntil([&] { return x.pixel(place + QPoint(20, 2)).value() < 60; }));
    EXPECT_TRUE(waitUntil([&] {
        const QPoint corner = x.geometry(program->menu()).bottomLeft();
        return x.pixel(corner) == PlainWindow::colour();
    }));
}

TEST_F(PillMenu, ClosesWhenAnEntryIsChosen) {
    startSinging();
    openMenu();
    person.pressAt(middleOfEntry("Open Settings"));
    EXPECT_TRUE(closes());
    EXPECT_TRUE(program->process().isRunning());
}

TEST_F(PillMenu, QuitEndsTheProgramWithoutAFault) {
    startSinging();
    openMenu();
    person.pressAt(middleOfEntry("Quit Brellowind"));
    EXPECT_EQ(program->process().finish(), 0);
}

} // namespace
} // namespace brellowind::test
