#include "platform/linux/MprisRecord.h"

#include "platform/linux/LocalMessage.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

namespace brellowind::platform {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// The record of the properties that are appended as `types` says.
template <typename... Values>
std::string record(const char* types, Values... values) {
    test::LocalMessage message;
    EXPECT_GE(sd_bus_message_append(message.get(), types, values...), 0) << types;
    return mprisRecord(message.sealed());
}

std::string fieldOf(const std::string& record, std::size_t index) {
    std::vector<std::string> fields;
    std::istringstream rest(record + '\x1F');
    for (std::string field; std::getline(rest, field, '\x1F');)
        fields.push_back(field);
    EXPECT_EQ(fields.size(), 7U);
    return fields.at(index);
}

template <typename... Values>
std::string property(const char* name, std::size_t index, const char* types, Values... values) {
    return fieldOf(record("a{sv}", 1, name, types, values...), index);
}

template <typename... Values>
std::string metadata(const char* key, std::size_t index, const char* types, Values... values) {
    return property("Metadata", index, "a{sv}", 1, key, types, values...);
}

template <typename... Values>
std::string duration(const char* types, Values... values) {
    return metadata("mpris:length", 3, types, values...);
}

template <typename... Values>
std::string position(const char* types, Values... values) {
    return property("Position", 5, types, values...);
}

std::string artwork(const char* location) {
    return metadata("mpris:artUrl", 4, "s", location);
}

TEST(MprisRecord, OfNothingIsSevenEmptyFields) {
    EXPECT_EQ(record("a{sv}", 0), std::string(6, '\x1F'));
}

TEST(MprisRecord, TurnsMicrosecondsIntoMillisecondsOfDuration) {
    EXPECT_EQ(duration("t", std::uint64_t(215000000)), "215000");
    EXPECT_EQ(duration("x", std::int64_t(215999999)), "215999.999");
    EXPECT_EQ(duration("d", 1500.5), "1.5005");
    EXPECT_EQ(duration("i", 0), "0");
}

TEST(MprisRecord, TurnsMicrosecondsIntoSecondsOfPosition) {
    EXPECT_EQ(position("x", std::int64_t(12500000)), "12.5");
    EXPECT_EQ(position("d", 1.0e6), "1");
}

TEST(MprisRecord, KeepsNegativeNumbers) {
    EXPECT_EQ(duration("i", -1000), "-1");
    EXPECT_EQ(duration("n", -1000), "-1");
    EXPECT_EQ(position("x", std::int64_t(-500000)), "-0.5");
}

TEST(MprisRecord, ReadsEveryTypeOfNumber) {
    for (const char* type : {"y", "n", "q", "i", "u"})
        EXPECT_EQ(duration(type, 200), "0.2") << type;
    EXPECT_EQ(duration("x", std::int64_t(200)), "0.2");
    EXPECT_EQ(duration("t", std::uint64_t(200)), "0.2");
    EXPECT_EQ(duration("d", 200.0), "0.2");
}

TEST(MprisRecord, LeavesNumbersOutThatNoTrackCanHave) {
    for (const double value : {infinity, -infinity, std::nan(""), 1e300, -1e300}) {
        EXPECT_EQ(duration("d", value), "") << value;
        EXPECT_EQ(position("d", value), "") << value;
    }
    EXPECT_EQ(duration("t", std::numeric_limits<std::uint64_t>::max()), "");
    EXPECT_EQ(position("x", std::numeric_limits<std::int64_t>::max()), "");
    EXPECT_EQ(position("x", std::numeric_limits<std::int64_t>::min()), "");
}

TEST(MprisRecord, LeavesNumbersOutThatAreOfAnotherType) {
    EXPECT_EQ(duration("b", 1), "");
    EXPECT_EQ(duration("s", "7"), "");
    EXPECT_EQ(duration("o", "/7"), "");
    EXPECT_EQ(duration("as", 1, "7"), "");
    EXPECT_EQ(duration("(i)", 7), "");
    EXPECT_EQ(position("b", 1), "");
    EXPECT_EQ(position("s", "7"), "");
}

TEST(MprisRecord, HugeButPossibleNumbersStayReadable) {
    EXPECT_DOUBLE_EQ(std::stod(duration("d", 9e18)), 9e15);
    EXPECT_DOUBLE_EQ(std::stod(position("d", 9e18)), 9e12);
}

TEST(MprisRecord, WritesTheStateInLowerCase) {
    const auto state = [](const char* status) {
        return property("PlaybackStatus", 6, "s", status);
    };
    EXPECT_EQ(state("Playing"), "playing");
    EXPECT_EQ(state("PAUSED"), "paused");
    EXPECT_EQ(state("stopped"), "stopped");
}

TEST(MprisRecord, TakesCoversFromTheImageHostThatAnswers) {
    EXPECT_EQ(artwork("https://open.spotify.com/image/ab67?x=1"),
              "https://i.scdn.co/image/ab67?x=1");
    EXPECT_EQ(artwork("http://open.spotify.com/image/ab67"), "https://i.scdn.co/image/ab67");
}

TEST(MprisRecord, LeavesOtherCoverLocationsAlone) {
    for (const char* location :
         {"", "https://i.scdn.co/image/ab67", "https://open.spotify.com/images/ab67",
          "https://open.spotify.com.example/image/ab67",
          "https://open.spotify.com/track/image/ab67", "file:///tmp/cover.png", "not a location",
          "https://other.example/?u=https://open.spotify.com/image/ab67"})
        EXPECT_EQ(artwork(location), location);
}

TEST(MprisRecord, TakesTextsAsTheyAre) {
    const char* odd = " \ttwo\nlines\r\a\u0085\u200F%s \\ \"x\" ";
    EXPECT_EQ(metadata("xesam:title", 0, "s", odd), odd);
    EXPECT_EQ(metadata("xesam:artist", 1, "as", 1, odd), odd);
    EXPECT_EQ(metadata("xesam:album", 2, "s", odd), odd);
}

TEST(MprisRecord, CutsTextsThatAreTooLongBetweenTwoCharacters) {
    const std::string longest(longestMprisText, 'x');
    const std::string tooLong = longest + 'x';
    const std::string halfBeyond = longest.substr(1) + "\u00e9"; // two bytes
    const std::string before = longest.substr(1);
    const auto title = [](const std::string& text) {
        return metadata("xesam:title", 0, "s", text.c_str());
    };
    EXPECT_EQ(title(longest), longest);
    EXPECT_EQ(title(tooLong), longest);
    EXPECT_EQ(title(halfBeyond), before);
    EXPECT_EQ(metadata("xesam:artist", 1, "as", 1, tooLong.c_str()), longest);
    EXPECT_EQ(metadata("xesam:artist", 1, "s", tooLong.c_str()), longest);
    EXPECT_EQ(metadata("xesam:album", 2, "s", tooLong.c_str()), longest);
}

TEST(MprisRecord, TakesNoCoverFromALocationThatIsTooLong) {
    const std::string longest = "https://i.scdn.co/" + std::string(longestMprisText - 18, 'x');
    EXPECT_EQ(artwork(longest.c_str()), longest);
    EXPECT_EQ(artwork((longest + 'x').c_str()), "");
}

TEST(MprisRecord, NoTextHasASeparatorThatWouldMakeANumberOfIt) {
    const char* sly = "\x1F"
                      "a\x1F"
                      "b\x1F"
                      "1e300\x1F";
    EXPECT_EQ(metadata("xesam:title", 0, "s", sly), "ab1e300");
    EXPECT_EQ(metadata("xesam:artist", 1, "as", 1, sly), "ab1e300");
    EXPECT_EQ(metadata("xesam:album", 2, "s", sly), "ab1e300");
    EXPECT_EQ(metadata("mpris:artUrl", 4, "s", sly), "ab1e300");
    EXPECT_EQ(property("PlaybackStatus", 6, "s", sly), "ab1e300");
}

TEST(MprisRecord, TakesTheFirstArtist) {
    EXPECT_EQ(metadata("xesam:artist", 1, "as", 2, "A", "B"), "A");
    EXPECT_EQ(metadata("xesam:artist", 1, "as", 2, "", "B"), "");
    EXPECT_EQ(metadata("xesam:artist", 1, "as", 0), "");
    EXPECT_EQ(metadata("xesam:artist", 1, "s", "A, B"), "A, B");
    EXPECT_EQ(metadata("xesam:artist", 1, "av", 2, "s", "A", "i", 7), "A");
    EXPECT_EQ(metadata("xesam:artist", 1, "av", 2, "i", 7, "s", "B"), "");
    EXPECT_EQ(metadata("xesam:artist", 1, "av", 0), "");
}

TEST(MprisRecord, ReadsWhatIsWrappedInFurtherVariants) {
    EXPECT_EQ(metadata("xesam:title", 0, "v", "v", "s", "Song"), "Song");
    EXPECT_EQ(property("Metadata", 0, "v", "a{sv}", 1, "xesam:title", "s", "Song"), "Song");
    EXPECT_EQ(duration("v", "v", "t", std::uint64_t(5000)), "5");
}

TEST(MprisRecord, ReadsOnAfterWhatItDoesNotKnow) {
    const auto fields = record("a{sv}", 4,                                  //
                               "Rate", "(da{sv})", 1.0, 1, "x", "s", "y",   //
                               "Metadata", "a{sv}", 3,                      //
                               "xesam:genre", "aas", 1, 2, "a", "b",        //
                               "xesam:title", "(s)", "no title",            //
                               "xesam:album", "s", "Album",                 //
                               "Volume", "v", "a{sv}", 1, "x", "v", "i", 7, //
                               "PlaybackStatus", "s", "Playing");
    EXPECT_EQ(fields, "\x1F\x1F"
                      "Album\x1F\x1F\x1F\x1F"
                      "playing");
}

TEST(MprisRecord, OfPropertiesThatCameTwiceTheLastCounts) {
    EXPECT_EQ(fieldOf(record("a{sv}", 2, "PlaybackStatus", "s", "Playing", "PlaybackStatus", "s",
                             "Paused"),
                      6),
              "paused");
}

} // namespace
} // namespace brellowind::platform
