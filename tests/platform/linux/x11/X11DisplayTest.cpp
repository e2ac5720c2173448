// SPDX-License-Identifier: MIT

#include "platform/linux/x11/X11Display.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brellowind::platform {
namespace {

TEST(X11Display, HasOneNameForAllSpellingsOfALocalDisplay) {
    for (const char* spelling : {":7", ":7.0", ":7.1", "unix/:7"})
        EXPECT_EQ(x11DisplayName(spelling), ":7") << spelling;
    // Since 1.16, libxcb takes this as the path of a socket and connects to no display.
    for (const char* spelling : {"unix:7", "unix:7.0"})
        EXPECT_THAT(x11DisplayName(spelling), testing::AnyOf(":7", "")) << spelling;
}

TEST(X11Display, KeepsNumbersApart) {
    EXPECT_EQ(x11DisplayName(":1"), ":1");
    EXPECT_EQ(x11DisplayName(":10"), ":10");
}

TEST(X11Display, KeepsHostsApart) {
    EXPECT_EQ(x11DisplayName("one:7.1"), "one:7");
    EXPECT_EQ(x11DisplayName("tcp/two:7"), "two:7");
    EXPECT_EQ(x11DisplayName("localhost:10.0"), "localhost:10");
}

TEST(X11Display, HasNoNameWhenItIsNoDisplay) {
    for (const char* spelling : {"7", "nonsense", ":"})
        EXPECT_EQ(x11DisplayName(spelling), "") << spelling;
}

} // namespace
} // namespace brellowind::platform
