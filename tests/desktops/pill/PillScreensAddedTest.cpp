// SPDX-License-Identifier: MIT

#include "desktops/pill/PillOnCompositor.h"

namespace brellowind::test {
namespace {

class PillScreensAdded : public PillOnCompositor {};

TEST_F(PillScreensAdded, LeaveThePillWhereItIs) {
    below();
    startSinging();
    const QRect before = silhouette(picture());
    const QString added = compositor->addScreen();
    const Picture another(compositor->screenshot(added));
    runFor(std::chrono::milliseconds(300));
    EXPECT_TRUE(shows("screen-added",
                      [&](const Picture& picture) { return silhouette(picture) == before; }));
    EXPECT_EQ(compositor->screenshot(added), another.image()) << "nothing is on it";
    enterPill();
    compositor->click(background());
    EXPECT_TRUE(program->becomes("isMinimized"));
}

} // namespace
} // namespace brellowind::test
