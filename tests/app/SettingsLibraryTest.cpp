// SPDX-License-Identifier: MIT

#include "app/SettingsLibrary.h"

#include "support/SettingsParts.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace brellowind {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class SettingsLibraryTest : public testing::Test {
protected:
    SettingsLibraryTest() { fs::create_directory(folder_); }
    ~SettingsLibraryTest() override { fs::remove_all(folder_); }

    std::string file(const char* name) const { return folder_ / name; }

    /// A copy of the fake, since a library is never unloaded.
    std::string copy(const char* name) const {
        fs::copy_file(BRELLOWIND_FAKE_SETTINGS, file(name));
        return file(name);
    }

    /// The log of the library and its window.
    std::vector<std::string>& log() { return machine_.log.lines; }

    SettingsServices services() { return parts_.services(); }

private:
    fs::path folder_ =
        fs::path(testing::TempDir()) / ("settings-" + std::to_string(std::random_device()()));
    test::TestMachine machine_;
    test::SettingsParts parts_{machine_};
};

TEST_F(SettingsLibraryTest, IsNotLoadedBeforeItIsOpened) {
    { const SettingsLibrary library(copy("a.so"), services()); }
    EXPECT_THAT(log(), IsEmpty());
}

TEST_F(SettingsLibraryTest, MakesOneWindowAndOpensItEachTime) {
    {
        SettingsLibrary library(copy("b.so"), services());
        library.open();
        library.open();
        EXPECT_THAT(log(), ElementsAre("made", "opened", "opened"));
    }
    EXPECT_EQ(log().back(), "gone");
}

TEST_F(SettingsLibraryTest, OpensWhatWasThereWhenTheProgramStarted) {
    SettingsLibrary library(copy("c.so"), services());
    fs::rename(file("c.so"), file("old"));
    std::ofstream(file("c.so")) << "of another version";
    fs::remove(file("old"));
    library.open();
    EXPECT_THAT(log(), ElementsAre("made", "opened"));
}

TEST_F(SettingsLibraryTest, SaysThatItIsMissing) {
    SettingsLibrary library(file("missing.so"), services());
    library.open();
    library.open();
    const auto complaint =
        AllOf(StartsWith("brellowind: the settings cannot be opened: "), HasSubstr("missing.so"));
    EXPECT_THAT(log(), ElementsAre(complaint, complaint)) << "each time";
}

TEST_F(SettingsLibraryTest, SaysThatItIsNoLibrary) {
    std::ofstream(file("text.so")) << "no library at all";
    SettingsLibrary library(file("text.so"), services());
    library.open();
    EXPECT_THAT(log(), ElementsAre(StartsWith("brellowind: the settings cannot be opened: ")));
}

TEST_F(SettingsLibraryTest, SaysThatItIsAnotherLibrary) {
    SettingsLibrary library("/proc/self/exe", services());
    library.open();
    EXPECT_THAT(log(), ElementsAre(StartsWith("brellowind: the settings cannot be opened: ")));
}

} // namespace
} // namespace brellowind
