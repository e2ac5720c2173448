// SPDX-License-Identifier: MIT

#include "settings/GeneralSettings.h"
#include "settings/UpdateChecker.h"
#include "support/SettingsParts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace brellowind {
namespace {

using platform::HttpResponse;
using platform::LoginItem;
using testing::ElementsAre;
using testing::IsEmpty;
using State = UpdateChecker::State;

class GeneralSettingsTest : public testing::Test {
protected:
    State checkState() const { return parts.updater->state.get(); }

    void answerLast(const std::string& body) {
        machine.http.answer(machine.http.requests.size() - 1, HttpResponse{200, body});
    }

    void appear(GeneralSettings& settings) {
        settings.appear();
        machine.mainLoop.runTurns();
    }

    test::TestMachine machine;
    test::SettingsParts parts{machine};
};

TEST_F(GeneralSettingsTest, TheSwitchBeginsOnOnlyWhenTheLoginItemIsEnabled) {
    machine.loginItem.current = LoginItem::Status::enabled;
    EXPECT_TRUE(GeneralSettings(parts.services()).launchAtLogin.get());
    for (const auto status : {LoginItem::Status::notRegistered, LoginItem::Status::requiresApproval,
                              LoginItem::Status::notFound}) {
        machine.loginItem.current = status;
        EXPECT_FALSE(GeneralSettings(parts.services()).launchAtLogin.get());
    }
    EXPECT_THAT(machine.loginItem.attempts, IsEmpty());
}

TEST_F(GeneralSettingsTest, TurningTheSwitchOnRegisters) {
    GeneralSettings settings(parts.services());
    settings.setLaunchAtLogin(true);
    EXPECT_TRUE(settings.launchAtLogin.get());
    EXPECT_THAT(machine.loginItem.attempts, ElementsAre("register"));
    EXPECT_THAT(machine.log.lines, IsEmpty());
}

TEST_F(GeneralSettingsTest, TurningTheSwitchOffUnregisters) {
    machine.loginItem.current = LoginItem::Status::enabled;
    GeneralSettings settings(parts.services());
    settings.setLaunchAtLogin(false);
    EXPECT_FALSE(settings.launchAtLogin.get());
    EXPECT_THAT(machine.loginItem.attempts, ElementsAre("unregister"));
    EXPECT_THAT(machine.log.lines, IsEmpty());
}

TEST_F(GeneralSettingsTest, AssigningTheSwitchItsOwnValueLeavesTheLoginItemAlone) {
    GeneralSettings settings(parts.services());
    int notifications = 0;
    const auto subscription = settings.launchAtLogin.observe([&] { ++notifications; });
    settings.setLaunchAtLogin(false);
    EXPECT_THAT(machine.loginItem.attempts, IsEmpty());
    EXPECT_EQ(notifications, 1);
}

TEST_F(GeneralSettingsTest, AFailedRegistrationTurnsTheSwitchBackAndWritesOneLine) {
    machine.loginItem.registrationError = "the disk is full";
    GeneralSettings settings(parts.services());
    std::vector<bool> before;
    const auto subscription =
        settings.launchAtLogin.observe([&] { before.push_back(settings.launchAtLogin.get()); });
    settings.setLaunchAtLogin(true);
    EXPECT_FALSE(settings.launchAtLogin.get());
    EXPECT_THAT(before, ElementsAre(false, true));
    EXPECT_THAT(machine.log.lines, ElementsAre("Launch-at-login error: the disk is full"));
}

TEST_F(GeneralSettingsTest, TheCorrectionAfterAFailureIsHandledAsAChangeOfTheSwitch) {
    machine.loginItem.registrationError = "no";
    GeneralSettings settings(parts.services());
    settings.setLaunchAtLogin(true);
    EXPECT_THAT(machine.loginItem.attempts, ElementsAre("register", "unregister"));
}

TEST_F(GeneralSettingsTest, AFailedUnregistrationTurnsTheSwitchBackOn) {
    machine.loginItem.current = LoginItem::Status::enabled;
    machine.loginItem.unregistrationError = "the folder is read-only";
    GeneralSettings settings(parts.services());
    settings.setLaunchAtLogin(false);
    EXPECT_TRUE(settings.launchAtLogin.get());
    EXPECT_THAT(machine.loginItem.attempts, ElementsAre("unregister", "register"));
    EXPECT_THAT(machine.log.lines, ElementsAre("Launch-at-login error: the folder is read-only"));
}

TEST_F(GeneralSettingsTest, ARegistrationThatFailsOnAnEnabledItemLeavesTheSwitchOn) {
    GeneralSettings settings(parts.services());
    machine.loginItem.current = LoginItem::Status::enabled; // changed by another program
    machine.loginItem.registrationError = "already there";
    settings.setLaunchAtLogin(true);
    EXPECT_TRUE(settings.launchAtLogin.get());
    EXPECT_THAT(machine.loginItem.attempts, ElementsAre("register"));
    EXPECT_THAT(machine.log.lines, ElementsAre("Launch-at-login error: already there"));
}

TEST_F(GeneralSettingsTest, AFailedCorrectionWritesItsOwnLineAndEndsThere) {
    machine.loginItem.registrationError = "first";
    machine.loginItem.unregistrationError = "second";
    GeneralSettings settings(parts.services());
    settings.setLaunchAtLogin(true);
    EXPECT_FALSE(settings.launchAtLogin.get());
    EXPECT_THAT(machine.log.lines,
                ElementsAre("Launch-at-login error: first", "Launch-at-login error: second"));
}

TEST_F(GeneralSettingsTest, EachAppearanceStartsACheck) {
    GeneralSettings settings(parts.services());
    EXPECT_THAT(machine.http.requests, IsEmpty());
    appear(settings);
    EXPECT_EQ(machine.http.requests.size(), 1U);
    EXPECT_EQ(checkState(), State::checking());
    appear(settings);
    EXPECT_EQ(machine.http.requests.size(), 2U);
    EXPECT_FALSE(machine.http.requests[0]->aborted);
}

TEST_F(GeneralSettingsTest, DisappearingCancelsTheCheckOfTheAppearance) {
    GeneralSettings settings(parts.services());
    appear(settings);
    settings.disappear();
    EXPECT_TRUE(machine.http.requests[0]->aborted);
    appear(settings);
    answerLast(R"({"version": "1.0", "url": "http://a"})");
    EXPECT_EQ(checkState(), State::upToDate());
}

TEST_F(GeneralSettingsTest, DisappearingAfterTheCheckKeepsItsOutcome) {
    GeneralSettings settings(parts.services());
    settings.disappear();
    appear(settings);
    answerLast(R"({"version": "1.0", "url": "http://a"})");
    settings.disappear();
    machine.mainLoop.runTurns();
    EXPECT_EQ(checkState(), State::upToDate());
    EXPECT_THAT(machine.log.lines, IsEmpty());
}

TEST_F(GeneralSettingsTest, TheButtonStartsACheckThatOutlivesTheTab) {
    {
        GeneralSettings settings(parts.services());
        settings.pressUpdateButton();
        EXPECT_EQ(checkState(), State::idle()); // does not block
        machine.mainLoop.runTurns();
        settings.disappear();
    }
    ASSERT_EQ(machine.http.requests.size(), 1U);
    answerLast(R"({"version": "1.0", "url": "http://a"})");
    EXPECT_EQ(checkState(), State::upToDate());
}

TEST_F(GeneralSettingsTest, TheButtonDoesNothingWhileChecking) {
    GeneralSettings settings(parts.services());
    appear(settings);
    settings.pressUpdateButton();
    machine.mainLoop.runTurns();
    EXPECT_EQ(machine.http.requests.size(), 1U);
    EXPECT_THAT(machine.links.opened, IsEmpty());
}

TEST_F(GeneralSettingsTest, TheButtonOpensTheDownloadOfAnAvailableReleaseInsteadOfChecking) {
    GeneralSettings settings(parts.services());
    appear(settings);
    answerLast(R"({"version": "2.0", "url": "https://brellowind.example/2.0"})");
    settings.pressUpdateButton();
    machine.mainLoop.runTurns();
    EXPECT_THAT(machine.links.opened, ElementsAre("https://brellowind.example/2.0"));
    EXPECT_EQ(machine.http.requests.size(), 1U);
}

TEST_F(GeneralSettingsTest, TheButtonTriesAgainAfterAFailure) {
    GeneralSettings settings(parts.services());
    appear(settings);
    answerLast("nonsense");
    settings.pressUpdateButton();
    machine.mainLoop.runTurns();
    EXPECT_EQ(machine.http.requests.size(), 2U);
    EXPECT_EQ(checkState(), State::checking());
}

TEST_F(GeneralSettingsTest, FeedbackOpensANewMessageToTheMaker) {
    GeneralSettings(parts.services()).sendFeedback();
    EXPECT_THAT(machine.links.opened,
                ElementsAre("mailto:feedback@brellowind.example?subject=Brellowind%20Feedback"));
}

TEST_F(GeneralSettingsTest, FeedbackToAnAddressThatMakesNoLinkOpensNothingAndSaysNothing) {
    for (const auto* email : {"some one@brellowind.example", "<a@b>", "50%@brellowind.example"}) {
        machine.constants.feedbackEmail = email;
        GeneralSettings(parts.services()).sendFeedback();
    }
    EXPECT_THAT(machine.links.opened, IsEmpty());
    EXPECT_THAT(machine.log.lines, IsEmpty());
}

TEST_F(GeneralSettingsTest, QuitTerminatesTheProgram) {
    GeneralSettings(parts.services()).quit();
    EXPECT_EQ(machine.mainLoop.quits, 1);
}

} // namespace
} // namespace brellowind
