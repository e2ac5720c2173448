#include "settings/AppInfo.h"
#include "support/TestMachine.h"

#include <gtest/gtest.h>

namespace brellowind {
namespace {

TEST(AppInfo, NamesAndDescribesTheProgram) {
    EXPECT_EQ(AppInfo::name, "Brellowind");
    EXPECT_EQ(AppInfo::description, "Lyrics that live in your notch");
}

TEST(AppInfo, GivesEachConstantOfTheOwnerInItsRole) {
    test::TestMachine machine;
    machine.constants.websiteURL = "website";
    machine.constants.socialURL = "social";
    machine.constants.privacyPolicyURL = "privacy";
    machine.constants.termsURL = "terms";
    machine.constants.feedbackEmail = "feedback";
    machine.constants.updateFeedURL = "feed";
    machine.constants.legalNotice = "notice";
    EXPECT_EQ(AppInfo::websiteURL(), "website");
    EXPECT_EQ(AppInfo::socialURL(), "social");
    EXPECT_EQ(AppInfo::privacyPolicyURL(), "privacy");
    EXPECT_EQ(AppInfo::termsURL(), "terms");
    EXPECT_EQ(AppInfo::feedbackEmail(), "feedback");
    EXPECT_EQ(AppInfo::updateFeedURL(), "feed");
    EXPECT_EQ(AppInfo::legalNotice(), "notice");
}

TEST(AppInfo, ShowsTheShortVersion) {
    test::TestMachine machine;
    machine.constants.version = "1.2";
    EXPECT_EQ(AppInfo::version(), "Version 1.2");
}

TEST(AppInfo, ShowsADashInABuildWithoutAVersion) {
    test::TestMachine machine;
    machine.constants.version.clear();
    EXPECT_EQ(AppInfo::version(), "Version \u2014");
}

} // namespace
} // namespace brellowind
