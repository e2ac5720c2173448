// SPDX-License-Identifier: MIT

#include "desktops/pill/PillOnCompositor.h"

namespace brellowind::test {
namespace {

class PillScreensOff : public PillOnCompositor {};

TEST_F(PillScreensOff, AndOnAgainShowThePillAsBefore) {
    below();
    startSinging();
    const QRect before = silhouette(picture());
    for (int time = 0; time < 2; ++time) {
        compositor->setScreensOn(false);
        runFor(std::chrono::milliseconds(500)); // in which the pill goes on singing
        compositor->setScreensOn(true);
        EXPECT_TRUE(shows("screens-on",
                          [&](const Picture& picture) { return silhouette(picture) == before; }));
    }
    enterPill();
    compositor->click(background());
    EXPECT_TRUE(program->becomes("isMinimized"));
    EXPECT_EQ(program->errors(), QStringList());
}

} // namespace
} // namespace brellowind::test
