// SPDX-License-Identifier: MIT

#include "settings/SettingsRouter.h"
#include "settings/UpdateChecker.h"
#include "views/RootViewFixture.h"

#include <gtest/gtest.h>

namespace brellowind {
namespace {

using test::View;

TEST(NotchRootViewMenu, OpensTheSettingsOnTheGeneralTab) {
    View view;
    view.parts.router.setSelectedTab(SettingsTab::about);
    auto tab = SettingsTab::about;
    view.onSettingsOpening = [&] { tab = view.parts.router.selectedTab.get(); };
    view.view.openSettings();
    EXPECT_EQ(view.settingsOpenings, 1);
    EXPECT_EQ(tab, SettingsTab::general) << "chosen before the settings open";
    EXPECT_EQ(view.requests(), 0U);
}

TEST(NotchRootViewMenu, ChecksForUpdatesOnTheGeneralTabOfTheOpenSettings) {
    View view;
    view.parts.router.setSelectedTab(SettingsTab::about);
    auto tab = SettingsTab::about;
    std::size_t requests = 1;
    view.onSettingsOpening = [&] {
        tab = view.parts.router.selectedTab.get();
        requests = view.requests();
    };
    view.view.checkForUpdates();
    view.runTurns();
    EXPECT_EQ(view.settingsOpenings, 1);
    EXPECT_EQ(tab, SettingsTab::general) << "chosen before the settings open";
    EXPECT_EQ(requests, 0U) << "asked after the settings have opened";
    ASSERT_EQ(view.requests(), 1U);
    EXPECT_EQ(view.machine.http.requests[0]->request.url, "https://brellowind.example/latest.json");
    EXPECT_EQ(view.parts.updater->state.get(), UpdateState::checking());
}

TEST(NotchRootViewMenu, LetsTheCheckEndWithoutTheView) {
    View view;
    view.view.checkForUpdates();
    view.runTurns();
    view.root.reset();
    view.machine.http.answer(
        0, platform::HttpResponse{200, R"({"version":"0.1","url":"https://x.example"})"});
    view.runTurns();
    EXPECT_EQ(view.parts.updater->state.get(), UpdateState::upToDate());
    EXPECT_EQ(view.machine.tasks.running(), 0U);
}

TEST(NotchRootViewMenu, ChecksAnewEachTime) {
    View view;
    view.view.checkForUpdates();
    view.view.checkForUpdates();
    view.runTurns();
    EXPECT_EQ(view.requests(), 2U);
    EXPECT_EQ(view.settingsOpenings, 2);
}

TEST(NotchRootViewMenu, Quits) {
    View view;
    view.view.quit();
    EXPECT_EQ(view.machine.mainLoop.quits, 1);
    EXPECT_EQ(view.settingsOpenings, 0);
}

TEST(NotchRootViewMenu, LeavesTheFormAlone) {
    View view;
    view.view.openSettings();
    view.view.checkForUpdates();
    view.view.quit();
    view.runTurns();
    EXPECT_EQ(view.form(), NotchRootView::Form{});
}

} // namespace
} // namespace brellowind
