// SPDX-License-Identifier: MIT

#include "settings/SettingsRouter.h"

#include <gtest/gtest.h>
#include <vector>

namespace brellowind {
namespace {

TEST(SettingsRouter, BeginsWithGeneral) {
    EXPECT_EQ(SettingsRouter().selectedTab.get(), SettingsTab::general);
}

TEST(SettingsRouter, TellsWhoeverShowsTheTabBeforeItChanges) {
    SettingsRouter router;
    router.setSelectedTab(SettingsTab::about);
    std::vector<SettingsTab> heard;
    const auto subscription =
        router.selectedTab.observe([&] { heard.push_back(router.selectedTab.get()); });
    router.setSelectedTab(SettingsTab::general);
    router.setSelectedTab(SettingsTab::general);
    EXPECT_EQ(heard, (std::vector{SettingsTab::about, SettingsTab::general}));
}

} // namespace
} // namespace brellowind
