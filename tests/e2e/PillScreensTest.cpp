// SPDX-License-Identifier: MIT

#include "e2e/PillFixture.h"
#include "session/x11/Monitors.h"

namespace brellowind::test {
namespace {

/// A screen that is divided into two monitors side by side.
class PillScreens : public PillOnDesktop {
protected:
    PillScreens() : PillOnDesktop(QStringLiteral("2400x900x24")) {
        monitors.add(left, {0, 0, 1400, 900}, true);
        monitors.add(right, {1400, 0, 1000, 900}, false);
    }

    bool hangsAt(QRect place) {
        return waitUntil([&] { return x.geometry(program->window()) == place; });
    }

    const QString left = QStringLiteral("left");
    const QString right = QStringLiteral("right");
    Monitors monitors{desktop.xServer.display()};
};

TEST_F(PillScreens, GoesToTheMiddleOfTheWholeOnceItIsNotDivided) {
    start();
    ASSERT_TRUE(hangsAt({380, 0, 640, 540}));
    monitors.remove(right);
    monitors.remove(left);
    EXPECT_TRUE(hangsAt({880, 0, 640, 540}));
}

TEST_F(PillScreens, HangsOnAnotherOneOnceItsOwnIsGone) {
    start();
    ASSERT_TRUE(hangsAt({380, 0, 640, 540}));
    monitors.remove(left);
    EXPECT_TRUE(hangsAt({1580, 0, 640, 540}));
}

TEST_F(PillScreens, FeelsThePointerWhereItHangs) {
    monitors.remove(left);
    monitors.remove(right);
    monitors.add(left, {0, 100, 1200, 800}, true);
    startSinging();
    EXPECT_TRUE(hangsAt({280, 100, 640, 540}));
    person.pointAt({600, 50});
    runFor(std::chrono::milliseconds(300));
    EXPECT_FALSE(program->is("hovered")) << "above the monitor";
    enterPill();
    person.pressAt({600, 110});
    EXPECT_TRUE(program->becomes("isMinimized"));
}

} // namespace
} // namespace brellowind::test
