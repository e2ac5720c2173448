// SPDX-License-Identifier: MIT

#include "desktops/pill/PillOnCompositor.h"

#include <QFile>

namespace brellowind::test {
namespace {

class PillEnd : public PillOnCompositor {
protected:
    void openSettingsAndMenu() {
        choose("Open Settings");
        EXPECT_TRUE(waitUntil([&] { return program->settings().isActive(); }));
        openMenu(); // not earlier: a menu closes when another window gets the keyboard
    }

    void expectFaultOfALine() {
        EXPECT_EQ(program->process().finish(), 1);
        EXPECT_EQ(program->errors(),
                  QStringList(QStringLiteral("brellowind: the display is gone")));
    }
};

TEST_F(PillEnd, ComesWithTheCompositors) {
    startSinging();
    compositor->kill();
    expectFaultOfALine();
}

TEST_F(PillEnd, ComesWithTheCompositorsWhileMenuAndSettingsAreOpen) {
    startSinging();
    openSettingsAndMenu();
    compositor->kill();
    expectFaultOfALine();
}

TEST_F(PillEnd, OnRequestIsWithoutAFaultAndLeavesNothingOnTheScreen) {
    below();
    startSinging();
    EXPECT_EQ(program->process().end(), 0);
    EXPECT_EQ(program->errors(), QStringList());
    EXPECT_TRUE(
        shows("ended", [&](const Picture& picture) { return silhouette(picture).isEmpty(); }));
}

TEST_F(PillEnd, NoGraphicsDriverWasLoadedUntilThen) {
    startSinging();
    openSettingsAndMenu();
    QFile maps(QStringLiteral("/proc/%1/maps").arg(program->process().processId()));
    ASSERT_TRUE(maps.open(QIODevice::ReadOnly));
    const QByteArray loaded = maps.readAll();
    EXPECT_TRUE(loaded.contains("libQt6Gui"));
    EXPECT_FALSE(loaded.contains("libLLVM"));
    EXPECT_FALSE(loaded.contains("_dri.so"));
}

} // namespace
} // namespace brellowind::test
