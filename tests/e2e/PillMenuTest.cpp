#include "e2e/PillFixture.h"

namespace brellowind::test {
namespace {

class PillMenu : public PillOnDesktop {
protected:
    /// Presses the secondary button in the middle of the pill, and gives that place.
    QPoint open() {
        enterPill();
        const QPoint place = middleOf("pill");
        person.pressAt(place, Person::secondary);
        EXPECT_TRUE(waitUntil([&] { return program->menu() != 0; }));
        EXPECT_TRUE(waitUntil([&] { return x.isViewable(program->menu()); }));
        return place;
    }

    bool closes() {
        return waitUntil([&] { return program->menu() == 0; });
    }

    QPoint middleOfEntry(const char* text) {
        return x.geometry(program->menu()).topLeft() + program->menuEntry(text).center().toPoint();
    }
};

TEST_F(PillMenu, OpensWhereThePointerIs) {
    startSinging();
    const QPoint place = open();
    EXPECT_EQ(x.geometry(program->menu()).topLeft(), place);
    EXPECT_FALSE(program->is("isMinimized")) << "a secondary press is no tap";
}

TEST_F(PillMenu, StaysWhenThePointerLeavesThePillForIt) {
    startSinging();
    open();
    person.pointAt(middleOfEntry("Quit Brellowind"));
    EXPECT_TRUE(program->becomes("hovered", false));
    EXPECT_NE(program->menu(), 0U);
}

TEST_F(PillMenu, ClosesOnAPressElsewhere) {
    startSinging();
    open();
    person.pressAt({100, 700});
    EXPECT_TRUE(closes());
    EXPECT_TRUE(program->process().isRunning());
}

TEST_F(PillMenu, ClosesOnTheEscapeKey) {
    startSinging();
    open();
    person.pressEscape();
    EXPECT_TRUE(closes());
}

TEST_F(PillMenu, HasRoundCornersWithoutACompositingManager) {
    startSinging();
    below();
    const QPoint place = open();
    EXPECT_TRUE(waitUntil([&] { return x.pixel(place + QPoint(20, 2)).value() < 60; }));
    EXPECT_TRUE(waitUntil([&] {
        const QPoint corner = x.geometry(program->menu()).bottomLeft();
        return x.pixel(corner) == PlainWindow::colour();
    }));
}

TEST_F(PillMenu, ClosesWhenAnEntryIsChosen) {
    startSinging();
    open();
    person.pressAt(middleOfEntry("Open Settings"));
    EXPECT_TRUE(closes());
    EXPECT_TRUE(program->process().isRunning());
}

TEST_F(PillMenu, QuitEndsTheProgramWithoutAFault) {
    startSinging();
    open();
    person.pressAt(middleOfEntry("Quit Brellowind"));
    EXPECT_EQ(program->process().finish(), 0);
}

} // namespace
} // namespace brellowind::test
