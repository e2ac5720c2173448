// SPDX-License-Identifier: MIT

#include "settings/window/SettingsModel.h"
#include "support/SettingsParts.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

namespace brellowind {
namespace {

struct Model {
    test::TestMachine machine;
    test::SettingsParts parts{machine};
    SettingsModel model{parts.services()};

    void turn() { machine.mainLoop.runTurns(); }
};

TEST(SettingsModel, NotifiesOfTheTabOnceAndOnlyWhenItDiffers) {
    Model test;
    const QSignalSpy changes(&test.model, &SettingsModel::tabChanged);
    auto& router = test.parts.router;
    router.setSelectedTab(SettingsTab::general);
    test.turn();
    EXPECT_EQ(changes.size(), 0);
    router.setSelectedTab(SettingsTab::about);
    router.setSelectedTab(SettingsTab::general);
    router.setSelectedTab(SettingsTab::about);
    EXPECT_EQ(changes.size(), 0);
    test.turn();
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(test.model.tab(), SettingsModel::About);
}

TEST(SettingsModel, ChecksOnlyWhileTheGeneralTabIsReallyShown) {
    Model test;
    auto& router = test.parts.router;
    router.setSelectedTab(SettingsTab::about);
    test.turn();
    router.setSelectedTab(SettingsTab::general);
    test.turn();
    EXPECT_TRUE(test.machine.http.requests.empty()) << "no window shows it";
    test.model.setShown(true);
    test.model.setShown(true);
    test.turn();
    EXPECT_EQ(test.machine.http.requests.size(), 1U);
}

TEST(GeneralModel, NotifiesOfTheCardATurnAfterItChanges) {
    Model test;
    auto& general = *test.model.general();
    const QSignalSpy cards(&general, &GeneralModel::cardChanged);
    const QSignalSpy switches(&general, &GeneralModel::launchAtLoginChanged);
    test.model.setShown(true);
    test.turn();
    EXPECT_EQ(cards.size(), 1);
    test.machine.http.answer(0, platform::TransportError{"no route"});
    EXPECT_EQ(cards.size(), 1) << "not inside the change";
    test.turn();
    EXPECT_EQ(cards.size(), 2);
    EXPECT_EQ(switches.size(), 0);
}

TEST(GeneralModel, DoesNotNotifyOfASwitchThatTurnedBack) {
    Model test;
    test.machine.loginItem.registrationError = "no";
    auto& general = *test.model.general();
    const QSignalSpy switches(&general, &GeneralModel::launchAtLoginChanged);
    general.setLaunchAtLogin(true);
    test.turn();
    EXPECT_EQ(switches.size(), 0);
    test.machine.loginItem.registrationError.reset();
    general.setLaunchAtLogin(true);
    test.turn();
    EXPECT_EQ(switches.size(), 1);
    EXPECT_TRUE(general.launchAtLogin());
}

} // namespace
} // namespace brellowind
