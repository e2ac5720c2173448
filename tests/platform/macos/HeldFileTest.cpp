// SPDX-License-Identifier: MIT

#include "platform/HeldFile.h"

#include "support/TemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace brellowind::platform {
namespace {

namespace fs = std::filesystem;

class HeldFileTest : public testing::Test {
protected:
    void write(const char* text) const { std::ofstream(path) << text; }

    const test::TemporaryFolder folder;
    const fs::path path = folder.path() / "file";
};

TEST_F(HeldFileTest, HasItsPathWhileItIsThere) {
    write("first");
    const HeldFile held(path);
    EXPECT_EQ(held.path(), path);
}

TEST_F(HeldFileTest, HasNoPathOnceAnotherFileIsThere) {
    write("first");
    const HeldFile held(path);
    fs::rename(path, folder.path() / "old");
    write("second");
    EXPECT_EQ(held.path(), std::nullopt);
}

TEST_F(HeldFileTest, HasNoPathOnceItIsGone) {
    write("first");
    const HeldFile held(path);
    fs::remove(path);
    EXPECT_EQ(held.path(), std::nullopt);
}

TEST_F(HeldFileTest, HasThePathThatItWasGivenIfNoFileWasThere) {
    const HeldFile held(path);
    EXPECT_EQ(held.path(), path);
}

} // namespace
} // namespace brellowind::platform
