// SPDX-License-Identifier: MIT

#include "platform/macos/ScriptPlayer.h"
#include "platform/macos/SpotifyBridge.h"
#include "support/TestMachine.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace brellowind::platform {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

constexpr long notPermitted = -1743;

/// Answers scripts as the test says, and remembers them.
class FakeScripts final : public ScriptHost {
public:
    bool isRunning(std::string_view bundleIdentifier) override {
        return runs && bundleIdentifier == SpotifyBridge::bundleIdentifier;
    }

    Outcome run(std::string_view source) override {
        sources.emplace_back(source);
        if (whileRunning)
            std::exchange(whileRunning, nullptr)();
        return outcome;
    }

    bool runs = true;
    Outcome outcome;
    std::function<void()> whileRunning; ///< runs once
    std::vector<std::string> sources;
};

class ScriptPlayerTest : public testing::Test {
protected:
    Player::Answer read() {
        std::optional<Player::Answer> answer;
        machine.tasks.start(readInto(answer));
        machine.mainLoop.runTurns();
        return answer.value();
    }

    void playPause() {
        machine.tasks.start(player.playPause());
        machine.mainLoop.runTurns();
    }

    void fail(long number, std::string description) {
        scripts.outcome = {std::nullopt, ScriptHost::Failure{number, std::move(description)}};
    }

    void answer(std::string text) { scripts.outcome = {std::move(text), std::nullopt}; }

    Task<void> readInto(std::optional<Player::Answer>& answer) { answer = co_await player.read(); }

    const std::string record = "Song\x1F"
                               "Artist\x1F"
                               "Album\x1F"
                               "215000\x1F\x1F"
                               "12,5\x1Fplaying";
    const Player::Answer reading =
        Player::Snapshot{Track{"Song", "Artist", "Album", 215000, std::nullopt}, true, 12.5};

    test::TestMachine machine;
    FakeScripts scripts;
    ScriptPlayer player{scripts, machine.mainLoop, machine.log};
};

std::string bounded(std::string_view script) {
    return "with timeout of 2 seconds\n" + std::string(script) + "\nend timeout";
}

TEST_F(ScriptPlayerTest, ReadsTheRecordThatTheScriptAnswers) {
    answer(record);
    EXPECT_EQ(read(), reading);
    EXPECT_THAT(scripts.sources, ElementsAre(bounded(SpotifyBridge::readOutScript)));
}

TEST_F(ScriptPlayerTest, RunsNoScriptUnlessTheApplicationRuns) {
    scripts.runs = false;
    EXPECT_EQ(read(), Player::Answer(Player::NotRunning()));
    EXPECT_THAT(scripts.sources, ElementsAre());
}

TEST_F(ScriptPlayerTest, CannotReadAnAnswerWithoutText) {
    EXPECT_EQ(read(), Player::Answer(Player::Unreadable()));
    EXPECT_THAT(machine.log.lines, ElementsAre());
}

TEST_F(ScriptPlayerTest, CannotReadTheAnswerOfAnApplicationThatHasJustQuit) {
    answer("");
    EXPECT_EQ(read(), Player::Answer(Player::Unreadable()));
    EXPECT_THAT(machine.log.lines, ElementsAre());
}

TEST_F(ScriptPlayerTest, CannotReadARecordOfTooFewFields) {
    answer("Song\x1F"
           "Artist");
    EXPECT_EQ(read(), Player::Answer(Player::Unreadable()));
}

TEST_F(ScriptPlayerTest, WritesADenialOnce) {
    fail(notPermitted, "{not permitted}");
    EXPECT_EQ(read(), Player::Answer(Player::Unreadable()));
    read();
    playPause();
    read();
    EXPECT_THAT(machine.log.lines, ElementsAre("Spotify AppleScript error: {not permitted}"));
}

TEST_F(ScriptPlayerTest, WritesAnotherFailureAndOneAfterASuccess) {
    fail(notPermitted, "{not permitted}");
    read();
    fail(-1712, "{timed out}");
    read();
    answer(record);
    read();
    fail(-1712, "{timed out}");
    read();
    EXPECT_THAT(machine.log.lines, ElementsAre("Spotify AppleScript error: {not permitted}",
                                               "Spotify AppleScript error: {timed out}",
                                               "Spotify AppleScript error: {timed out}"));
}

TEST_F(ScriptPlayerTest, SendsTheCommandWhetherTheApplicationRunsOrNot) {
    scripts.runs = false;
    playPause();
    EXPECT_THAT(scripts.sources, ElementsAre(bounded(SpotifyBridge::playPauseScript)));
}

TEST_F(ScriptPlayerTest, SendsACommandThatComesDuringAScriptAfterIt) {
    answer(record);
    scripts.whileRunning = [this] {
        machine.tasks.start(player.playPause());
        machine.mainLoop.runTurns();
        EXPECT_EQ(scripts.sources.size(), 1U);
    };
    read();
    machine.mainLoop.advance(1s);
    EXPECT_THAT(scripts.sources, ElementsAre(bounded(SpotifyBridge::readOutScript),
                                             bounded(SpotifyBridge::playPauseScript)));
}

TEST_F(ScriptPlayerTest, RunsNoScriptWithinAnother) {
    scripts.whileRunning = [this] { EXPECT_EQ(read(), Player::Answer(Player::Unreadable())); };
    playPause();
    EXPECT_THAT(scripts.sources, ElementsAre(bounded(SpotifyBridge::playPauseScript)));
}

} // namespace
} // namespace brellowind::platform
