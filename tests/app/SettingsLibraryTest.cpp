#include "app/SettingsLibrary.h"

#include "app/FakeSettings.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace brellowind {

test::SettingsCounts test::settingsCounts{};

namespace {

namespace fs = std::filesystem;
using test::SettingsCounts;
using test::settingsCounts;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

class SettingsLibraryTest : public testing::Test {
protected:
    SettingsLibraryTest() {
        settingsCounts = {};
        fs::create_directory(folder_);
    }
    ~SettingsLibraryTest() override { fs::remove_all(folder_); }

    std::string file(const char* name) const { return folder_ / name; }

    /// A copy of the fake, since one that is loaded stays loaded.
    std::string copy(const char* name) const {
        fs::copy_file(BRELLOWIND_FAKE_SETTINGS, file(name));
        return file(name);
    }

    /// What opening says on standard error.
    static std::string complaint(SettingsLibrary& library) {
        testing::internal::CaptureStderr();
        library.open();
        return testing::internal::GetCapturedStderr();
    }

private:
    fs::path folder_ =
        fs::path(testing::TempDir()) / ("settings-" + std::to_string(std::random_device()()));
};

TEST_F(SettingsLibraryTest, IsNotLoadedBeforeItIsOpened) {
    { const SettingsLibrary library(copy("a.so")); }
    EXPECT_EQ(settingsCounts, SettingsCounts());
}

TEST_F(SettingsLibraryTest, MakesOneWindowAndOpensItEachTime) {
    {
        SettingsLibrary library(copy("b.so"));
        EXPECT_EQ(complaint(library), "");
        library.open();
        EXPECT_EQ(settingsCounts, (SettingsCounts{1, 2, 0}));
    }
    EXPECT_EQ(settingsCounts, (SettingsCounts{1, 2, 1}));
}

TEST_F(SettingsLibraryTest, OpensWhatWasThereWhenTheProgramStarted) {
    SettingsLibrary library(copy("c.so"));
    fs::rename(file("c.so"), file("old"));
    std::ofstream(file("c.so")) << "of another version";
    fs::remove(file("old"));
    EXPECT_EQ(complaint(library), "");
    EXPECT_EQ(settingsCounts.opened, 1);
}

TEST_F(SettingsLibraryTest, SaysThatItIsMissing) {
    SettingsLibrary library(file("missing.so"));
    EXPECT_THAT(complaint(library), AllOf(StartsWith("brellowind: the settings cannot be opened: "),
                                          HasSubstr("missing.so")));
    EXPECT_NE(complaint(library), "") << "each time";
}

TEST_F(SettingsLibraryTest, SaysThatItIsNoLibrary) {
    std::ofstream(file("text.so")) << "no library at all";
    SettingsLibrary library(file("text.so"));
    EXPECT_THAT(complaint(library), StartsWith("brellowind: the settings cannot be opened: "));
}

TEST_F(SettingsLibraryTest, SaysThatItIsAnotherLibrary) {
    SettingsLibrary library("/proc/self/exe");
    EXPECT_THAT(complaint(library), StartsWith("brellowind: the settings cannot be opened: "));
}

} // namespace
} // namespace brellowind
