// SPDX-License-Identifier: MIT

#include "settings/AppInfo.h"

#include <gtest/gtest.h>

namespace brellowind {
namespace {

TEST(AppInfo, NamesAndDescribesTheProgram) {
    EXPECT_EQ(AppInfo::name, "Brellowind");
    EXPECT_EQ(AppInfo::description, "Lyrics that live in your notch");
}

TEST(AppInfo, ShowsTheShortVersion) {
    EXPECT_EQ(AppInfo::version("1.2"), "Version 1.2");
}

TEST(AppInfo, ShowsADashInABuildWithoutAVersion) {
    EXPECT_EQ(AppInfo::version(""), "Version \u2014");
}

} // namespace
} // namespace brellowind
