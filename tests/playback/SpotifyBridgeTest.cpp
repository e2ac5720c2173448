#include "playback/SpotifyBridge.h"
#include "support/TestMachine.h"

#include <cmath>
#include <gtest/gtest.h>
#include <initializer_list>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brellowind {
namespace {

using platform::ScriptOutcome;
using Lines = std::vector<std::string>;

std::string record(std::initializer_list<std::string_view> fields) {
    std::string joined;
    std::string_view separator;
    for (const auto field : fields) {
        joined.append(separator).append(field);
        separator = "\x1F";
    }
    return joined;
}

struct Reading {
    test::TestMachine machine;

    std::optional<SpotifyBridge::Snapshot> of(ScriptOutcome outcome) {
        machine.scripting.answer = [outcome](const auto&) { return outcome; };
        return SpotifyBridge::snapshot();
    }

    std::optional<SpotifyBridge::Snapshot> of(std::string text) {
        return of(ScriptOutcome{.text = std::move(text), .error = std::nullopt});
    }
};

Lines linesOf(std::string_view text) {
    Lines lines(1);
    for (const char character : text) {
        if (character == '\n')
            lines.emplace_back();
        else
            lines.back().push_back(character);
    }
    return lines;
}

TEST(SpotifyBridgeScripts, PlayPauseIsOneLineOf39Characters) {
    EXPECT_EQ(SpotifyBridge::playPauseScript, "tell application \"Spotify\" to playpause");
    EXPECT_EQ(SpotifyBridge::playPauseScript.size(), 39U);
}

TEST(SpotifyBridgeScripts, ReadOutHas15LinesAnd556Characters) {
    const Lines expected{
        "tell application \"Spotify\"",
        "    if it is running then",
        "        set sep to (ASCII character 31)",
        "        set tName to name of current track",
        "        set tArtist to artist of current track",
        "        set tAlbum to album of current track",
        "        set tDur to duration of current track",
        "        set tArt to artwork url of current track",
        "        set tPos to player position",
        "        set tState to player state as string",
        "        return tName & sep & tArtist & sep & tAlbum & sep & tDur & sep & tArt & sep & tPos"
        " & sep & tState",
        "    else",
        "        return \"\"",
        "    end if",
        "end tell",
    };
    EXPECT_EQ(linesOf(SpotifyBridge::readOutScript), expected);
    EXPECT_EQ(SpotifyBridge::readOutScript.size(), 556U);
}

TEST(SpotifyBridgeIsRunning, LooksForTheBundleIdentifierAmongAllApplications) {
    test::TestMachine machine;
    machine.runningApplications.running = {"org.example.editor", std::nullopt,
                                           "com.spotify.client"};
    EXPECT_TRUE(SpotifyBridge::isRunning());
}

TEST(SpotifyBridgeIsRunning, MatchesTheWholeIdentifierOnly) {
    test::TestMachine machine;
    EXPECT_FALSE(SpotifyBridge::isRunning());
    for (const auto* other : {"com.spotify.client.helper", "com.spotify.clien", "spotify",
                              "Com.Spotify.Client", "com.spotify.client ", ""}) {
        machine.runningApplications.running = {other};
        EXPECT_FALSE(SpotifyBridge::isRunning()) << other;
    }
    machine.runningApplications.running = {std::nullopt};
    EXPECT_FALSE(SpotifyBridge::isRunning());
}

TEST(SpotifyBridgeIsRunning, LooksAgainOnEveryRead) {
    test::TestMachine machine;
    machine.runningApplications.running = {"com.spotify.client"};
    EXPECT_TRUE(SpotifyBridge::isRunning());
    machine.runningApplications.running.clear();
    EXPECT_FALSE(SpotifyBridge::isRunning());
    EXPECT_EQ(machine.runningApplications.readings, 2);
    EXPECT_TRUE(machine.scripting.executed.empty());
}

TEST(SpotifyBridgeSnapshot, ReadsTheSevenFields) {
    Reading reading;
    const auto snapshot = reading.of(record(
        {"Song", "Artist", "Album", "215000", "https://covers.example/1", "12,5", "playing"}));
    EXPECT_EQ(snapshot, SpotifyBridge::Snapshot(
                            Track("Song", "Artist", "Album", 215000, "https://covers.example/1"),
                            true, 12.5));
    EXPECT_EQ(reading.machine.scripting.executed, Lines{std::string(SpotifyBridge::readOutScript)});
    EXPECT_TRUE(reading.machine.log.lines.empty());
}

TEST(SpotifyBridgeSnapshot, RunsTheScriptAnewEachTime) {
    Reading reading;
    ASSERT_TRUE(reading.of(record({"One", "", "", "0", "", "0", "playing"})));
    EXPECT_EQ(reading.of(record({"Two", "", "", "0", "", "0", "playing"}))->track.title, "Two");
    EXPECT_EQ(reading.machine.scripting.executed.size(), 2U);
}

TEST(SpotifyBridgeSnapshot, PlaysOnlyInTheStateThatReadsPlaying) {
    Reading reading;
    for (const auto* state : {"paused", "stopped", "Playing", "playing ", " playing", "play", ""})
        EXPECT_FALSE(reading.of(record({"S", "A", "L", "1", "", "1", state}))->isPlaying) << state;
    EXPECT_TRUE(reading.of(record({"S", "A", "L", "1", "", "1", "playing"}))->isPlaying);
}

TEST(SpotifyBridgeSnapshot, KeepsTextsUntrimmed) {
    Reading reading;
    const auto snapshot = reading.of(record({" Tïtle\n", "\tA ", "🎵", "1", " ", "1", "paused"}));
    EXPECT_EQ(snapshot->track, Track(" Tïtle\n", "\tA ", "🎵", 1, " "));
}

TEST(SpotifyBridgeSnapshot, EmptyArtworkIsAbsent) {
    Reading reading;
    EXPECT_EQ(reading.of(record({"S", "A", "L", "1", "", "1", "paused"}))->track.artworkURL,
              std::nullopt);
}

TEST(SpotifyBridgeSnapshot, SevenEmptyFieldsAreAReading) {
    Reading reading;
    EXPECT_EQ(reading.of(std::string(6, '\x1F')),
              SpotifyBridge::Snapshot(Track("", "", "", 0, std::nullopt), false, 0));
}

TEST(SpotifyBridgeSnapshot, FewerThanSevenFieldsAreNone) {
    Reading reading;
    EXPECT_FALSE(reading.of(record({"Song", "Artist", "Album", "1", "art", "2"})));
    EXPECT_FALSE(reading.of(std::string(5, '\x1F')));
    EXPECT_FALSE(reading.of(std::string("Song")));
    EXPECT_FALSE(reading.of(std::string("\x1F")));
    EXPECT_TRUE(reading.machine.log.lines.empty());
}

TEST(SpotifyBridgeSnapshot, WhatFollowsTheSeventhFieldIsIgnored) {
    Reading reading;
    const SpotifyBridge::Snapshot expected(Track("S", "A", "L", 1, "art"), true, 2);
    EXPECT_EQ(reading.of(record({"S", "A", "L", "1", "art", "2", "playing", "more"})), expected);
    EXPECT_EQ(reading.of(record({"S", "A", "L", "1", "art", "2", "playing", "", "", ""})),
              expected);
}

TEST(SpotifyBridgeSnapshot, SeparatorInTheTitleShiftsTheLaterFields) {
    Reading reading;
    const auto snapshot = reading.of(record(
        {"So\x1Fng", "Artist", "Album", "215000", "https://covers.example/1", "12.5", "playing"}));
    EXPECT_EQ(snapshot, SpotifyBridge::Snapshot(Track("So", "ng", "Artist", 0, "215000"), false,
                                                0)); // the artwork stands where the position was
}

TEST(SpotifyBridgeSnapshot, EmptyAnswerIsNoneAndLogsNothing) {
    Reading reading;
    EXPECT_FALSE(reading.of(std::string()));
    EXPECT_TRUE(reading.machine.log.lines.empty());
}

TEST(SpotifyBridgeSnapshot, ResultWithoutTextIsNoneAndLogsNothing) {
    Reading reading;
    EXPECT_FALSE(reading.of(ScriptOutcome{}));
    EXPECT_TRUE(reading.machine.log.lines.empty());
}

TEST(SpotifyBridgeSnapshot, ScriptErrorIsNoneAndLogsOneLine) {
    Reading reading;
    EXPECT_FALSE(reading.of(ScriptOutcome{.text = std::nullopt, .error = "timed out (100%s)"}));
    EXPECT_EQ(reading.machine.log.lines, Lines{"Spotify AppleScript error: timed out (100%s)"});
}

TEST(SpotifyBridgeSnapshot, ErrorOutweighsATextThatComesWithIt) {
    Reading reading;
    EXPECT_FALSE(reading.of(
        ScriptOutcome{.text = record({"S", "A", "L", "1", "", "1", "playing"}), .error = ""}));
    EXPECT_EQ(reading.machine.log.lines, Lines{"Spotify AppleScript error: "});
}

TEST(SpotifyBridgePlayPause, RunsTheCommandWithoutAskingWhetherSpotifyRuns) {
    test::TestMachine machine;
    SpotifyBridge::playPause();
    EXPECT_EQ(machine.scripting.executed, Lines{std::string(SpotifyBridge::playPauseScript)});
    EXPECT_EQ(machine.runningApplications.readings, 0);
    EXPECT_TRUE(machine.log.lines.empty());
}

TEST(SpotifyBridgePlayPause, FailureLogsOneLine) {
    test::TestMachine machine;
    machine.scripting.answer = [](const auto&) {
        return ScriptOutcome{.text = std::nullopt, .error = "not allowed"};
    };
    SpotifyBridge::playPause();
    EXPECT_EQ(machine.log.lines, Lines{"Spotify AppleScript error: not allowed"});
}

/// A spelling, and what it means as a duration and as a position.
struct Number {
    std::string_view field;
    double duration;
    double position;
};

Number both(std::string_view field, double value) {
    return {field, value, value};
}

void expectReads(const std::vector<Number>& numbers) {
    Reading reading;
    for (const auto& [field, duration, position] : numbers) {
        SCOPED_TRACE('"' + std::string(field) + '"');
        const auto snapshot = reading.of(record({"S", "A", "L", field, "art", field, "playing"}));
        ASSERT_TRUE(snapshot.has_value());
        EXPECT_EQ(snapshot->track, Track("S", "A", "L", duration, "art"));
        EXPECT_EQ(snapshot->positionSec, position);
        EXPECT_EQ(std::signbit(snapshot->track.durationMs), std::signbit(duration));
        EXPECT_EQ(std::signbit(snapshot->positionSec), std::signbit(position));
        EXPECT_TRUE(snapshot->isPlaying);
    }
}

TEST(SpotifyBridgeNumbers, AreOneLiteralInCNotation) {
    expectReads({
        both("215000", 215000),
        both("0", 0),
        both("12.5", 12.5),
        both("007", 7),
        both("+5", 5),
        both("-5", -5),
        both("-0", -0.0),
        both("5.", 5),
        both(".5", 0.5),
        both("-.5", -0.5),
        both("+1.25", 1.25),
        both("1e3", 1000),
        both("1E3", 1000),
        both("1e+3", 1000),
        both("25e-1", 2.5),
        both("0.1000000000000000055511151231257827", 0.1),
        both("1.7976931348623157e308", std::numeric_limits<double>::max()),
    });
}

TEST(SpotifyBridgeNumbers, AreZeroWhenTheWholeFieldIsNoLiteral) {
    std::vector<Number> unreadable;
    for (const auto* field :
         {"",      " ",     "five",    "inf",  "-inf",  "+inf",   "infinity", "nan",
          "NAN",   "-nan",  "nan()",   "0x10", "0x1p3", "-0x1",   " 5",       "5 ",
          "5\n",   "\t5",   "5\u00A0", "1e",   "1e+",   "e3",     ".",        "-",
          "+",     "--5",   "++5",     "+-5",  "-+5",   "- 5",    "1 000",    "1'000",
          "1_000", "1.2.3", "5f",      "5s",   "5e1.5", "\u0665", "\uFF15",   "-x"})
        unreadable.push_back(both(field, 0));
    expectReads(unreadable);
}

TEST(SpotifyBridgeNumbers, AreZeroWhenNoDoubleCanHoldThem) {
    expectReads({both("1e999", 0), both("-1e999", 0), both("1e-999", 0)});
}

TEST(SpotifyBridgeNumbers, MayHaveADecimalCommaInThePositionOnly) {
    expectReads({
        {"1,5", 0, 1.5},
        {"12,5", 0, 12.5},
        {"215000,0", 0, 215000},
        {",5", 0, 0.5},
        {"-1,5", 0, -1.5},
        {"1,5e1", 0, 15},
        both("1,234.5", 0),
        both("1,234,5", 0),
        both(",", 0),
    });
}

} // namespace
} // namespace brellowind
