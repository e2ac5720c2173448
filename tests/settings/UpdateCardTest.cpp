// SPDX-License-Identifier: MIT

#include "settings/UpdateCard.h"

#include <gtest/gtest.h>

namespace brellowind {
namespace {

using Action = UpdateCard::Action;
using Color = UpdateCard::Color;
using State = UpdateChecker::State;

const Release release{"2.0", "https://brellowind.example/2.0", std::nullopt};

TEST(UpdateCard, OffersTheDownloadOfAnAvailableRelease) {
    const auto card = updateCard(State::available(release), "1.4");
    EXPECT_EQ(card.icon, "arrow.down.circle.fill");
    EXPECT_EQ(card.color, Color::yellow);
    EXPECT_EQ(card.tintOpacity, 0.1);
    EXPECT_EQ(card.title, "Update Available");
    EXPECT_EQ(card.buttonLabel, "Download update");
    EXPECT_EQ(card.buttonAction, Action::openDownload);
    EXPECT_TRUE(card.buttonEnabled());
    EXPECT_EQ(card.versionText, "ver-1.4  \u2192  ver-2.0");
}

TEST(UpdateCard, ShowsProgressAndADisabledButtonWhileChecking) {
    const auto card = updateCard(State::checking(), "1.4");
    EXPECT_EQ(card.icon, "");
    EXPECT_EQ(card.color, Color::teal);
    EXPECT_EQ(card.tintOpacity, 0.12);
    EXPECT_EQ(card.title, "Checking for updates");
    EXPECT_EQ(card.buttonLabel, "Checking\u2026");
    EXPECT_EQ(card.buttonAction, Action::none);
    EXPECT_FALSE(card.buttonEnabled());
    EXPECT_EQ(card.versionText, "ver-1.4");
}

TEST(UpdateCard, OffersAnotherTryAfterAFailure) {
    const auto card = updateCard(State::failed(), "1.4");
    EXPECT_EQ(card.icon, "exclamationmark.circle.fill");
    EXPECT_EQ(card.color, Color::red);
    EXPECT_EQ(card.tintOpacity, 0.1);
    EXPECT_EQ(card.title, "Update check failed");
    EXPECT_EQ(card.buttonLabel, "Try again");
    EXPECT_EQ(card.buttonAction, Action::check);
    EXPECT_TRUE(card.buttonEnabled());
    EXPECT_EQ(card.versionText, "ver-1.4");
}

TEST(UpdateCard, OffersACheckWhenUpToDate) {
    const auto card = updateCard(State::upToDate(), "1.4");
    EXPECT_EQ(card.icon, "checkmark.circle.fill");
    EXPECT_EQ(card.color, Color::green);
    EXPECT_EQ(card.tintOpacity, 0.12);
    EXPECT_EQ(card.title, "Up to date");
    EXPECT_EQ(card.buttonLabel, "Check update");
    EXPECT_EQ(card.buttonAction, Action::check);
    EXPECT_TRUE(card.buttonEnabled());
    EXPECT_EQ(card.versionText, "ver-1.4");
}

TEST(UpdateCard, LooksUpToDateBeforeTheFirstCheck) {
    EXPECT_EQ(updateCard(State::idle(), "1.4"), updateCard(State::upToDate(), "1.4"));
}

TEST(UpdateCard, ShowsVersionsAsTheyAre) {
    EXPECT_EQ(updateCard(State::idle(), "%1 <b>").versionText, "ver-%1 <b>");
    EXPECT_EQ(updateCard(State::available({"", "http://a", {}}), "0").versionText,
              "ver-0  \u2192  ver-");
}

} // namespace
} // namespace brellowind
