#include "settings/SettingsRouter.h"
#include "support/TestMachine.h"

#include <gtest/gtest.h>

namespace brellowind {
namespace {

TEST(SettingsRouter, BeginsWithGeneral) {
    const test::TestMachine machine;
    EXPECT_EQ(SettingsRouter::shared().selectedTab.get(), SettingsTab::general);
}

TEST(SettingsRouter, IsOneForEverybody) {
    const test::TestMachine machine;
    SettingsRouter::shared().setSelectedTab(SettingsTab::about);
    EXPECT_EQ(SettingsRouter::shared().selectedTab.get(), SettingsTab::about);
    EXPECT_EQ(&SettingsRouter::shared(), &SettingsRouter::shared());
}

TEST(SettingsRouter, TellsWhoeverShowsTheTabBeforeItChanges) {
    const test::TestMachine machine;
    auto& router = SettingsRouter::shared();
    router.setSelectedTab(SettingsTab::about);
    std::vector<SettingsTab> heard;
    const auto subscription =
        router.selectedTab.observe([&] { heard.push_back(router.selectedTab.get()); });
    router.setSelectedTab(SettingsTab::general);
    router.setSelectedTab(SettingsTab::general);
    EXPECT_EQ(heard, (std::vector{SettingsTab::about, SettingsTab::general}));
}

TEST(SettingsRouter, GoesWithTheMachineItBelongsTo) {
    const test::TestMachine outer;
    SettingsRouter::shared().setSelectedTab(SettingsTab::about);
    {
        const test::TestMachine inner;
        EXPECT_EQ(SettingsRouter::shared().selectedTab.get(), SettingsTab::general);
    }
    EXPECT_EQ(SettingsRouter::shared().selectedTab.get(), SettingsTab::about);
}

} // namespace
} // namespace brellowind
