// SPDX-License-Identifier: MIT

#include "platform/linux/PlayerChoice.h"

#include <gmock/gmock.h>
#include <vector>

namespace brellowind::platform {
namespace {

using testing::Eq;
using testing::Optional;
using Candidates = std::vector<PlayerCandidate>;
using State = PlayerCandidate::State;

const PlayerCandidate asked{State::asked};
const PlayerCandidate late{State::late};
const PlayerCandidate lateThatPlayed{State::late, true};
const PlayerCandidate unreadable{State::unreadable};
const PlayerCandidate withoutTrack{State::withoutTrack};
const PlayerCandidate paused{State::paused};
const PlayerCandidate playing{State::playing};

std::optional<PlayerChoice> choose(const Candidates& candidates) {
    return choosePlayer(candidates);
}

auto player(std::size_t index) {
    return Optional(Eq(PlayerChoice(index)));
}

const auto waits = Eq(std::nullopt);
const auto notRunning = Optional(Eq(PlayerChoice(Player::NotRunning())));
const auto isUnreadable = Optional(Eq(PlayerChoice(Player::Unreadable())));

TEST(PlayerChoice, OfNoPlayerIsThatNoneRuns) {
    EXPECT_THAT(choose({}), notRunning);
}

TEST(PlayerChoice, OfOnePlayerIsWhatItAnswers) {
    EXPECT_THAT(choose({playing}), player(0));
    EXPECT_THAT(choose({paused}), player(0));
    EXPECT_THAT(choose({withoutTrack}), notRunning);
    EXPECT_THAT(choose({unreadable}), isUnreadable);
}

TEST(PlayerChoice, WaitsForASinglePlayerHoweverLong) {
    EXPECT_THAT(choose({asked}), waits);
    EXPECT_THAT(choose({late}), waits);
    EXPECT_THAT(choose({lateThatPlayed}), waits);
}

TEST(PlayerChoice, IsTheFirstThatPlays) {
    EXPECT_THAT(choose({paused, playing}), player(1));
    EXPECT_THAT(choose({playing, paused}), player(0));
    EXPECT_THAT(choose({playing, playing}), player(0));
    EXPECT_THAT(choose({withoutTrack, unreadable, playing, playing}), player(2));
}

TEST(PlayerChoice, IsTheFirstWithATrackIfNonePlays) {
    EXPECT_THAT(choose({paused, paused}), player(0));
    EXPECT_THAT(choose({withoutTrack, paused, paused}), player(1));
    EXPECT_THAT(choose({unreadable, paused}), player(1));
}

TEST(PlayerChoice, IsUnreadableIfNoneThatCanBeReadHasATrack) {
    EXPECT_THAT(choose({withoutTrack, unreadable}), isUnreadable);
    EXPECT_THAT(choose({unreadable, withoutTrack}), isUnreadable);
    EXPECT_THAT(choose({withoutTrack, withoutTrack}), notRunning);
}

TEST(PlayerChoice, WaitsForEveryAnswerThatIsNotLate) {
    EXPECT_THAT(choose({asked, playing}), waits);
    EXPECT_THAT(choose({playing, asked}), waits);
    EXPECT_THAT(choose({paused, asked}), waits);
    EXPECT_THAT(choose({unreadable, asked}), waits);
    EXPECT_THAT(choose({withoutTrack, asked}), waits);
    EXPECT_THAT(choose({late, asked}), waits);
}

TEST(PlayerChoice, DoesNotWaitForALateAnswerOnceAPlayerPlays) {
    EXPECT_THAT(choose({late, playing}), player(1));
    EXPECT_THAT(choose({lateThatPlayed, playing}), player(1));
    EXPECT_THAT(choose({playing, lateThatPlayed}), player(0));
    EXPECT_THAT(choose({late, paused, playing}), player(2));
}

TEST(PlayerChoice, WaitsForALatePlayerThatPlayedWhileNoneOfTheOthersPlays) {
    EXPECT_THAT(choose({lateThatPlayed, paused}), waits);
    EXPECT_THAT(choose({paused, lateThatPlayed}), waits);
    EXPECT_THAT(choose({lateThatPlayed, unreadable}), waits);
    EXPECT_THAT(choose({lateThatPlayed, withoutTrack}), waits);
}

TEST(PlayerChoice, DoesNotWaitForALatePlayerThatDidNotPlay) {
    EXPECT_THAT(choose({late, paused}), player(1));
    EXPECT_THAT(choose({late, withoutTrack}), notRunning);
    EXPECT_THAT(choose({late, unreadable}), isUnreadable);
}

TEST(PlayerChoice, WhatAnAnswerSaysGoesBeforeWhatThePreviousOneSaid) {
    const PlayerCandidate pausedNow{State::paused, true};
    EXPECT_THAT(choose({pausedNow, playing}), player(1));
    EXPECT_THAT(choose({paused, pausedNow}), player(0));
}

} // namespace
} // namespace brellowind::platform
