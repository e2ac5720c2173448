// SPDX-License-Identifier: MIT

#include "lyrics/LrclibAPI.h"
#include "support/TestMachine.h"

#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace brellowind {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using Case = LyricsState::Case;
using platform::TransportError;
using Items = std::vector<std::pair<std::string, std::string>>;

constexpr std::string_view origin = "https://lyrics.example";

Track song(double durationMs = 215000) {
    return {"Song", "Artist", "Album", durationMs, std::nullopt};
}

Track titled(std::string title) {
    return {std::move(title), "Artist", "Album", 215000, std::nullopt};
}

/// Decodes a form value: a plus sign is a space.
std::string decoded(std::string_view value) {
    std::string bytes;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '+') {
            bytes += ' ';
        } else if (value[i] == '%') {
            bytes += static_cast<char>(std::stoi(std::string(value.substr(i + 1, 2)), nullptr, 16));
            i += 2;
        } else {
            bytes += value[i];
        }
    }
    return bytes;
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (auto at = text.find(separator); at != std::string_view::npos; at = text.find(separator)) {
        parts.push_back(text.substr(0, at));
        text.remove_prefix(at + 1);
    }
    parts.push_back(text);
    return parts;
}

/// The decoded query of `url`, which must be the lyrics URL at `origin`.
Items queryOf(std::string_view url) {
    const auto parts = split(url, '?');
    EXPECT_EQ(parts.size(), 2U) << url;
    EXPECT_EQ(parts.at(0), std::string(origin) + "/api/get");
    Items items;
    for (const auto item : split(parts.at(1), '&')) {
        const auto sides = split(item, '=');
        EXPECT_EQ(sides.size(), 2U) << item;
        items.emplace_back(decoded(sides.at(0)), decoded(sides.at(1)));
    }
    return items;
}

std::string durationOf(double durationMs) {
    return queryOf(LrclibAPI::requestURL(origin, song(durationMs)).value()).at(3).second;
}

TEST(LrclibRequestURL, AsksByTitleArtistAlbumAndDurationInThisOrder) {
    EXPECT_EQ(LrclibAPI::requestURL(origin, song()),
              "https://lyrics.example/api/get?track_name=Song&artist_name=Artist&album_name=Album"
              "&duration=215");
}

TEST(LrclibRequestURL, EscapesSpacesAndAmpersands) {
    const Track track("Hello World", "A & B", "Größe", 1000, std::nullopt);
    const auto url = LrclibAPI::requestURL(origin, track).value();
    EXPECT_EQ(queryOf(url), (Items{{"track_name", "Hello World"},
                                   {"artist_name", "A & B"},
                                   {"album_name", "Größe"},
                                   {"duration", "1"}}));
    EXPECT_EQ(url, "https://lyrics.example/api/get?track_name=Hello%20World&artist_name=A%20%26%20B"
                   "&album_name=Gr%C3%B6%C3%9Fe&duration=1");
}

TEST(LrclibRequestURL, AServiceReadsEveryTextBackUnchanged) {
    std::vector<std::string> texts{"",
                                   "100% & #1 + 2 = 3; who/what?",
                                   "%20",
                                   "%",
                                   "+",
                                   "a&artist_name=b",
                                   "'single' \"double\" `back`",
                                   "[brackets] {braces} <angles> (parens)",
                                   "back\\slash | pipe ^ caret ~ tilde",
                                   "user@host:80!*,$",
                                   "line\nbreak\r\ttab\x7F",
                                   "nul\0inside"s,
                                   "夜に駆ける",
                                   "שלום",
                                   "e\u0301 \u00E9 \u00A0",
                                   "🎵👨‍👩‍👧",
                                   "\U0010FFFF"};
    std::string everyAscii;
    for (char character = 1; character != '\x7F'; ++character)
        everyAscii += character;
    texts.push_back(everyAscii);
    for (const auto& text : texts) {
        const Track track(text, text, text, 1000, std::nullopt);
        EXPECT_EQ(queryOf(LrclibAPI::requestURL(origin, track).value()),
                  (Items{{"track_name", text},
                         {"artist_name", text},
                         {"album_name", text},
                         {"duration", "1"}}));
    }
}

TEST(LrclibRequestURL, HoldsOnlyCharactersThatAnAddressMayHold) {
    std::string all = "é🎵";
    for (char character = 1; character != '\x7F'; ++character)
        all += character;
    const auto url = LrclibAPI::requestURL("", titled(all)).value();
    for (const char character : url)
        EXPECT_NE(std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"
                                   "-._~/?&=%")
                      .find(character),
                  std::string_view::npos)
            << character;
}

TEST(LrclibRequestURL, TellsTheDurationInWholeSecondsTruncatedTowardsZero) {
    EXPECT_EQ(durationOf(0), "0");
    EXPECT_EQ(durationOf(-0.0), "0");
    EXPECT_EQ(durationOf(999.999), "0");
    EXPECT_EQ(durationOf(1000), "1");
    EXPECT_EQ(durationOf(59999), "59");
    EXPECT_EQ(durationOf(215999), "215");
    EXPECT_EQ(durationOf(-999), "0");
    EXPECT_EQ(durationOf(-1000), "-1");
    EXPECT_EQ(durationOf(-1999), "-1");
}

TEST(LrclibRequestURL, TellsTheLongestDurationsInFull) {
    constexpr double limit = 9223372036854775808.0; // 2^63 s
    EXPECT_EQ(durationOf(-limit * 1000), "-9223372036854775808");
    EXPECT_EQ(durationOf(9.0e18 * 1000), "9000000000000000000");
}

TEST(LrclibRequestURLDeathTest, DurationsThatAreNoNumberOfSecondsStopTheProgram) {
    constexpr double limit = 9223372036854775808.0;
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double durationMs : {std::numeric_limits<double>::quiet_NaN(), infinity, -infinity,
                                    limit * 1000, -limit * 1001, 1e300})
        EXPECT_DEATH(LrclibAPI::requestURL(origin, song(durationMs)),
                     "Fatal error: the duration of a track is not representable in whole seconds")
            << durationMs;
}

TEST(LrclibRequestURL, IsAbsentForATextThatIsNotUtf8) {
    for (const auto* text : {"\xFF", "abc\x80", "\xC3", "\xC0\xAF", "\xED\xA0\x80",
                             "\xF4\x90\x80\x80", "\xE2\x82", "caf\xE9"}) {
        EXPECT_EQ(LrclibAPI::requestURL(origin, Track(text, "", "", 0, std::nullopt)),
                  std::nullopt);
        EXPECT_EQ(LrclibAPI::requestURL(origin, Track("", text, "", 0, std::nullopt)),
                  std::nullopt);
        EXPECT_EQ(LrclibAPI::requestURL(origin, Track("", "", text, 0, std::nullopt)),
                  std::nullopt);
    }
}

/// A fetch on a fake machine.
struct Fetch {
    explicit Fetch(const Track& track) : handle(machine.tasks.start(run(track))) {}

    Task<void> run(Track track) {
        result = co_await LrclibAPI::fetch(machine.http, machine.constants, std::move(track));
    }

    const platform::HttpRequest& request() const { return machine.http.requests.at(0)->request; }
    Case outcome() const { return result.value().which(); }

    test::TestMachine machine;
    std::optional<LyricsState> result;
    TaskHandle handle;
};

TEST(LrclibFetch, SendsOneRequest) {
    Fetch fetch(song());
    fetch.machine.mainLoop.runTurns();
    ASSERT_EQ(fetch.machine.http.requests.size(), 1U);
    EXPECT_EQ(fetch.request().url, LrclibAPI::requestURL(origin, song()));
    EXPECT_EQ(fetch.request().headers,
              (Items{{"User-Agent", "Brellowind v0.1 (https://brellowind.example)"}}));
    EXPECT_EQ(fetch.request().timeout, 60s);
    EXPECT_FALSE(fetch.result.has_value());
}

TEST(LrclibFetch, NamesTheProductsWebsiteToTheService) {
    Fetch fetch(song());
    fetch.machine.constants.websiteURL = "https://other.example/app";
    fetch.machine.constants.lyricsOrigin = "http://127.0.0.1:8080";
    fetch.machine.mainLoop.runTurns();
    EXPECT_EQ(fetch.request().headers.at(0).second, "Brellowind v0.1 (https://other.example/app)");
    EXPECT_TRUE(fetch.request().url.starts_with("http://127.0.0.1:8080/api/get?track_name="));
}

TEST(LrclibFetch, NamesNoWebsiteWhereThereIsNone) {
    Fetch fetch(song());
    fetch.machine.constants.websiteURL.clear();
    fetch.machine.mainLoop.runTurns();
    EXPECT_EQ(fetch.request().headers.at(0).second, "Brellowind v0.1");
}

TEST(LrclibFetch, FailsWithoutARequestWhenATextIsNotUtf8) {
    Fetch fetch(titled("caf\xE9"));
    fetch.machine.mainLoop.runTurns();
    EXPECT_EQ(fetch.outcome(), Case::failed);
    EXPECT_TRUE(fetch.machine.http.requests.empty());
}

TEST(LrclibFetch, FailsWhenTheTransferFails) {
    Fetch fetch(song());
    fetch.machine.mainLoop.runTurns();
    fetch.machine.http.answer(0, TransportError{"connection refused"});
    EXPECT_EQ(fetch.outcome(), Case::failed);
    fetch.machine.mainLoop.advance(5min);
    EXPECT_EQ(fetch.machine.http.requests.size(), 1U) << "nothing is retried";
    EXPECT_TRUE(fetch.machine.log.lines.empty()) << "nothing is logged";
}

TEST(LrclibFetch, FailsWhenItIsCancelledInFlight) {
    Fetch fetch(song());
    fetch.machine.mainLoop.runTurns();
    fetch.handle.cancel();
    EXPECT_TRUE(fetch.machine.http.requests.at(0)->aborted);
    fetch.machine.mainLoop.runTurns();
    EXPECT_EQ(fetch.outcome(), Case::failed);
}

TEST(LrclibFetch, FailsWithoutARequestWhenItIsCancelledBefore) {
    Fetch fetch(song());
    fetch.handle.cancel();
    fetch.machine.mainLoop.runTurns();
    EXPECT_EQ(fetch.outcome(), Case::failed);
    EXPECT_TRUE(fetch.machine.http.requests.empty());
}

struct Answer {
    const char* name;
    int status;
    std::string body;
    Case expected;
    std::string plainText = {};
};

std::ostream& operator<<(std::ostream& out, const Answer& answer) {
    return out << answer.name;
}

class LrclibAnswer : public testing::TestWithParam<Answer> {};

TEST_P(LrclibAnswer, Means) {
    const auto state = LrclibAPI::interpret(GetParam().status, GetParam().body);
    EXPECT_EQ(state.which(), GetParam().expected);
    EXPECT_EQ(state.text(), GetParam().plainText);
    EXPECT_EQ(state.lines().empty(), state.which() != Case::loaded);
}

const Answer answers[] = {
    {"Synced", 200, R"({"syncedLyrics":"[00:01.00]a","plainLyrics":"a"})", Case::loaded},
    {"SyncedAlone", 200, R"({"syncedLyrics":"[00:01.00]a"})", Case::loaded},
    {"SyncedAmongOtherKeys", 200,
     R"({"id":7,"duration":215.5,"x":[{}],"syncedLyrics":"[00:01.00]"})", Case::loaded},
    {"SyncedWithPlainNull", 200, R"({"syncedLyrics":"[00:01.00]a","plainLyrics":null})",
     Case::loaded},
    {"SyncedInAnErrorStatus", 500, R"({"syncedLyrics":"[00:01.00]a"})", Case::loaded},
    {"SyncedInACreatedStatus", 201, R"({"syncedLyrics":"[00:01.00]a"})", Case::loaded},
    {"SyncedWithoutTags", 200, R"({"syncedLyrics":"words","plainLyrics":"words"})", Case::notFound},
    {"SyncedOfSpaces", 200, R"({"syncedLyrics":" \n","plainLyrics":"words"})", Case::notFound},
    {"PlainWithSyncedNull", 200, R"({"syncedLyrics":null,"plainLyrics":"words"})", Case::plain,
     "words"},
    {"PlainWithSyncedMissing", 200, R"({"plainLyrics":"words"})", Case::plain, "words"},
    {"PlainWithSyncedEmpty", 200, R"({"syncedLyrics":"","plainLyrics":"words"})", Case::plain,
     "words"},
    {"PlainAsReceived", 200, R"({"plainLyrics":" a\r\n\n[00:01.00]\u00e9\ud83c\udfb5\u0000 "})",
     Case::plain, " a\r\n\n[00:01.00]é🎵\0 "s},
    {"PlainOfSpaces", 200, R"({"plainLyrics":" "})", Case::plain, " "},
    {"PlainInAnErrorStatus", 400, R"({"plainLyrics":"words"})", Case::plain, "words"},
    {"EmptyObject", 200, "{}", Case::notFound},
    {"BothNull", 200, R"({"syncedLyrics":null,"plainLyrics":null})", Case::notFound},
    {"BothEmpty", 200, R"({"syncedLyrics":"","plainLyrics":""})", Case::notFound},
    {"KeysInAnotherCase", 200, R"({"SyncedLyrics":"[00:01.00]a","PLAINLYRICS":"a"})",
     Case::notFound},
    {"KeysDeeperDown", 200, R"({"data":{"plainLyrics":"a"}})", Case::notFound},
    {"ErrorObject", 500, R"({"code":500,"message":"oops"})", Case::notFound},
    {"BadRequestObject", 400, "{}", Case::notFound},
    {"SyncedIsANumber", 200, R"({"syncedLyrics":5,"plainLyrics":"words"})", Case::failed},
    {"SyncedIsABoolean", 200, R"({"syncedLyrics":false})", Case::failed},
    {"SyncedIsAnObject", 200, R"({"syncedLyrics":{}})", Case::failed},
    {"PlainIsAnArray", 200, R"({"syncedLyrics":"[00:01.00]a","plainLyrics":[]})", Case::failed},
    {"SyncedIsAnArrayBesidePlain", 200, R"({"syncedLyrics":[1],"plainLyrics":"words","x":{}})",
     Case::failed},
    {"SyncedIsAnEmptyArray", 200, R"({"syncedLyrics":[],"x":{}})", Case::failed},
    {"SyncedIsBeyondAllNumbers", 200, R"({"syncedLyrics":1e999})", Case::failed},
    {"WrongTypeAndThenAText", 200, R"({"plainLyrics":[{}],"plainLyrics":"words"})", Case::plain,
     "words"},
    {"TextAndThenAWrongType", 200, R"({"plainLyrics":"words","plainLyrics":{}})", Case::failed},
    {"TextAndThenNull", 200, R"({"plainLyrics":"words","plainLyrics":null})", Case::notFound},
    {"NumbersOutOfRange", 200, R"({"id":1e999,"plainLyrics":"words","x":[-1e9999,{"y":1e-999}]})",
     Case::plain, "words"},
    {"NumberThatIsNone", 200, R"({"id":1e,"plainLyrics":"words"})", Case::failed},
    {"NulAfterTheObject", 200, "{\"plainLyrics\":\"words\"}\0"s, Case::failed},
    {"NulBetweenValues", 200, "{\"plainLyrics\":\0\"words\"}"s, Case::failed},
    {"NulInAText", 200, "{\"plainLyrics\":\"wo\0rds\"}"s, Case::failed},
    {"PlainIsANumber", 200, R"({"plainLyrics":0})", Case::failed},
    {"PlainIsABoolean", 200, R"({"plainLyrics":true})", Case::failed},
    {"PlainIsAnObject", 200, R"({"plainLyrics":{"a":"words"}})", Case::failed},
    {"OtherKeysOfWrongTypes", 200,
     R"({"id":{},"name":[],"trackName":1,"artistName":null,"albumName":true,"duration":"long",)"
     R"("instrumental":"yes","plainLyrics":null,"syncedLyrics":"[00:01.00]a"})",
     Case::loaded},
    {"Array", 200, R"([{"plainLyrics":"words"}])", Case::failed},
    {"String", 200, R"("words")", Case::failed},
    {"Null", 200, "null", Case::failed},
    {"Page", 200, "<!DOCTYPE html><html></html>", Case::failed},
    {"EmptyBody", 200, "", Case::failed},
    {"EmptyBodyOfAnError", 500, "", Case::failed},
    {"PageOfAnError", 500, "<html>oops</html>", Case::failed},
    {"CutOff", 200, R"({"plainLyrics":"words)", Case::failed},
    {"TrailingText", 200, R"({"plainLyrics":"words"} and more)", Case::failed},
    {"Nuls", 200, std::string(1000, '\0'), Case::failed},
    {"Utf16", 200, "{\0\"\0a\0\"\0:\0001\0}\0"s, Case::failed},
    {"NotUtf8", 200, "{\"plainLyrics\":\"caf\xE9\"}", Case::failed},
    {"NotUtf8InAnotherKey", 200, "{\"name\":\"\xC3\x28\",\"syncedLyrics\":\"[00:01.00]a\"}",
     Case::failed},
    {"SurrogateInUtf8", 200, "{\"plainLyrics\":\"\xED\xA0\x80\"}", Case::failed},
    {"LoneSurrogate", 200, R"({"plainLyrics":"\ud83c"})", Case::failed},
    {"DeeplyNested", 200, std::string(100'000, '[') + std::string(100'000, ']'), Case::failed},
    {"DeeplyNestedOtherKey", 200,
     R"({"x":)" + std::string(100'000, '[') + std::string(100'000, ']') + "}", Case::notFound},
    {"DeeplyNestedAndCutOff", 200, std::string(100'000, '['), Case::failed},
    {"NotFound", 404, R"({"code":404,"name":"TrackNotFound"})", Case::notFound},
    {"NotFoundWithLyrics", 404, R"({"syncedLyrics":"[00:01.00]a"})", Case::notFound},
    {"NotFoundWithAPage", 404, "<html></html>", Case::notFound},
    {"NotFoundWithoutBody", 404, "", Case::notFound},
};

INSTANTIATE_TEST_SUITE_P(OfTheService, LrclibAnswer, testing::ValuesIn(answers),
                         [](const auto& answer) { return std::string(answer.param.name); });

TEST(LrclibInterpret, GivesTheParsedLines) {
    const auto state = LrclibAPI::interpret(
        200, R"({"syncedLyrics":"[00:02.50]b\n[00:01.00]\u00e9\n[ar:x]","plainLyrics":"a"})");
    ASSERT_EQ(state.lines().size(), 2U);
    EXPECT_EQ(state.lines()[0].time, 1);
    EXPECT_EQ(state.lines()[0].text, "é");
    EXPECT_EQ(state.lines()[1].time, 2.5);
    EXPECT_EQ(state.lines()[1].text, "b");
}

} // namespace
} // namespace brellowind
