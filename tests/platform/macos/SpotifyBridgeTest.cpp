// SPDX-License-Identifier: MIT

#include "platform/macos/SpotifyBridge.h"

#include <cmath>
#include <gtest/gtest.h>
#include <initializer_list>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brellowind::platform {
namespace {

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

TEST(SpotifyBridgeSnapshot, ReadsTheSevenFields) {
    const auto snapshot = SpotifyBridge::snapshot(record(
        {"Song", "Artist", "Album", "215000", "https://covers.example/1", "12,5", "playing"}));
    EXPECT_EQ(snapshot, (Player::Snapshot{
                            Track("Song", "Artist", "Album", 215000, "https://covers.example/1"),
                            true, 12.5}));
}

TEST(SpotifyBridgeSnapshot, PlaysOnlyInTheStateThatReadsPlaying) {
    for (const auto* state : {"paused", "stopped", "Playing", "playing ", " playing", "play", ""})
        EXPECT_FALSE(
            SpotifyBridge::snapshot(record({"S", "A", "L", "1", "", "1", state}))->isPlaying)
            << state;
    EXPECT_TRUE(
        SpotifyBridge::snapshot(record({"S", "A", "L", "1", "", "1", "playing"}))->isPlaying);
}

TEST(SpotifyBridgeSnapshot, KeepsTextsUntrimmed) {
    const auto snapshot =
        SpotifyBridge::snapshot(record({" Tïtle\n", "\tA ", "🎵", "1", " ", "1", "paused"}));
    EXPECT_EQ(snapshot->track, Track(" Tïtle\n", "\tA ", "🎵", 1, " "));
}

TEST(SpotifyBridgeSnapshot, EmptyArtworkIsAbsent) {
    EXPECT_EQ(
        SpotifyBridge::snapshot(record({"S", "A", "L", "1", "", "1", "paused"}))->track.artworkURL,
        std::nullopt);
}

TEST(SpotifyBridgeSnapshot, SevenEmptyFieldsAreAReading) {
    EXPECT_EQ(SpotifyBridge::snapshot(std::string(6, '\x1F')),
              (Player::Snapshot{Track("", "", "", 0, std::nullopt), false, 0}));
}

TEST(SpotifyBridgeSnapshot, FewerThanSevenFieldsAreNone) {
    EXPECT_FALSE(SpotifyBridge::snapshot(record({"Song", "Artist", "Album", "1", "art", "2"})));
    EXPECT_FALSE(SpotifyBridge::snapshot(std::string(5, '\x1F')));
    EXPECT_FALSE(SpotifyBridge::snapshot(std::string("Song")));
    EXPECT_FALSE(SpotifyBridge::snapshot(std::string("\x1F")));
}

TEST(SpotifyBridgeSnapshot, WhatFollowsTheSeventhFieldIsIgnored) {
    const Player::Snapshot expected{Track("S", "A", "L", 1, "art"), true, 2};
    EXPECT_EQ(SpotifyBridge::snapshot(record({"S", "A", "L", "1", "art", "2", "playing", "more"})),
              expected);
    EXPECT_EQ(
        SpotifyBridge::snapshot(record({"S", "A", "L", "1", "art", "2", "playing", "", "", ""})),
        expected);
}

TEST(SpotifyBridgeSnapshot, SeparatorInTheTitleShiftsTheLaterFields) {
    const auto snapshot = SpotifyBridge::snapshot(record(
        {"So\x1Fng", "Artist", "Album", "215000", "https://covers.example/1", "12.5", "playing"}));
    EXPECT_EQ(snapshot, (Player::Snapshot{Track("So", "ng", "Artist", 0, "215000"), false,
                                          0})); // the artwork stands where the position was
}

TEST(SpotifyBridgeSnapshot, EmptyAnswerIsNone) {
    EXPECT_FALSE(SpotifyBridge::snapshot(""));
}

/// A number's text, and its value as a duration and as a position.
struct Number {
    std::string_view field;
    double duration;
    double position;
};

Number both(std::string_view field, double value) {
    return {field, value, value};
}

void expectReads(const std::vector<Number>& numbers) {
    for (const auto& [field, duration, position] : numbers) {
        SCOPED_TRACE('"' + std::string(field) + '"');
        const auto snapshot =
            SpotifyBridge::snapshot(record({"S", "A", "L", field, "art", field, "playing"}));
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
        {"9.1e21", 9.1e21, 9.1e21},
        {"9.3e21", 0, 9.3e21}, // as seconds it does not fit 64 bits
        {"1.7976931348623157e308", 0, std::numeric_limits<double>::max()},
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
} // namespace brellowind::platform
