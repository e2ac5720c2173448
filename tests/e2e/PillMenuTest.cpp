// SPDX-License-Identifier: MIT

#include "e2e/PillFixture.h"

namespace brellowind::test {
namespace {

using PillMenu = PillOnDesktop;

TEST_F(PillMenu, ClosesWhenAnEntryIsChosen) {
    startSinging();
    openMenu();
    person.pressAt(middleOfEntry("Open Settings"));
    EXPECT_TRUE(waitUntil([&] { return program->menu() == 0; }));
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
