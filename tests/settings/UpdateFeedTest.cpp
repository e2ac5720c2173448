// SPDX-License-Identifier: MIT

#include "settings/UpdateFeed.h"

#include <gtest/gtest.h>
#include <string>

namespace brellowind {
namespace {

using UpdateFeed::decode;
using UpdateFeed::Undecodable;

constexpr auto address = "https://brellowind.example/1.3";

TEST(UpdateFeed, ReadsAllThreeKeys) {
    EXPECT_EQ(
        std::get<Release>(decode(
            R"({"version": "1.3", "url": "https://brellowind.example/1.3", "notes": "Hi ♪"})")),
        (Release{"1.3", address, "Hi ♪"}));
}

TEST(UpdateFeed, DoesWithoutNotes) {
    const Release release{"1.3", address, std::nullopt};
    EXPECT_EQ(
        std::get<Release>(decode(R"({"version": "1.3", "url": "https://brellowind.example/1.3"})")),
        release);
    EXPECT_EQ(std::get<Release>(decode(
                  R"({"version": "1.3", "url": "https://brellowind.example/1.3", "notes": null})")),
              release);
}

TEST(UpdateFeed, TellsEmptyNotesFromAbsentOnes) {
    EXPECT_EQ(std::get<Release>(decode(R"({"version": "1", "url": "http://a", "notes": ""})"))
                  .notes.value(),
              "");
}

TEST(UpdateFeed, AcceptsAnyTextAsVersion) {
    EXPECT_EQ(std::get<Release>(decode(R"({"version": "", "url": "http://a"})")).version, "");
    EXPECT_EQ(std::get<Release>(decode(R"({"version": " v1 ♪", "url": "http://a"})")).version,
              " v1 ♪");
}

TEST(UpdateFeed, AcceptsAnyWebAddress) {
    for (const std::string url : {"http://a", "HTTPS://a.example:8080/x?y=z#w", "https://u:p@a/"})
        EXPECT_EQ(std::get<Release>(decode(R"({"version": "1", "url": ")" + url + "\"}")).url, url);
}

TEST(UpdateFeed, IgnoresOtherKeys) {
    EXPECT_EQ(
        std::get<Release>(decode(
            R"({"Version": 1, "size": 9, "files": [{"url": 3}], "version": "1", "url": "http://a"})")),
        (Release{"1", "http://a", std::nullopt}));
}

TEST(UpdateFeed, NestingOfAnyDepthIsReadOrRefusedLikeAnythingElse) {
    constexpr std::size_t depth = 400'000;
    const std::string open(depth, '[');
    const std::string closed = open + std::string(depth, ']');
    EXPECT_TRUE(std::holds_alternative<Undecodable>(decode(open)));
    EXPECT_TRUE(std::holds_alternative<Undecodable>(decode(closed)));
    EXPECT_TRUE(std::holds_alternative<Release>(
        decode(R"({"version": "1", "url": "http://a", "more": )" + closed + "}")));
}

class UndecodableFeed : public testing::TestWithParam<const char*> {};

TEST_P(UndecodableFeed, GivesADescriptionThatRepeatsNothingOfIt) {
    const auto feed = decode(GetParam());
    ASSERT_TRUE(std::holds_alternative<Undecodable>(feed));
    const auto description = std::get<Undecodable>(feed).description;
    EXPECT_FALSE(description.empty());
    EXPECT_EQ(description.find("SECRET"), std::string_view::npos);
    EXPECT_EQ(description.find('\n'), std::string_view::npos);
}

INSTANTIATE_TEST_SUITE_P(NoJSON, UndecodableFeed,
                         testing::Values("", " ", "<html>SECRET</html>",
                                         R"({"version": "1", "url": "http://a")",
                                         R"({"version": "1", "url": "http://a"} SECRET)",
                                         "{\"version\": \"\xFFSECRET\", \"url\": \"a:b\"}"));
INSTANTIATE_TEST_SUITE_P(NoObject, UndecodableFeed,
                         testing::Values("null", "1", R"("SECRET")", R"(["version", "url"])",
                                         R"([{"version": "1", "url": "http://a"}])"));
INSTANTIATE_TEST_SUITE_P(NoVersion, UndecodableFeed,
                         testing::Values(R"({"url": "http://a"})",
                                         R"({"version": null, "url": "http://a"})",
                                         R"({"version": 1.3, "url": "http://a"})",
                                         R"({"version": ["SECRET"], "url": "http://a"})",
                                         R"({"Version": "SECRET", "url": "http://a"})"));
INSTANTIATE_TEST_SUITE_P(NoURL, UndecodableFeed,
                         testing::Values(R"({"version": "SECRET"})",
                                         R"({"version": "1", "url": null})",
                                         R"({"version": "1", "url": 5})",
                                         R"({"version": "1", "url": {"a": "SECRET"}})",
                                         R"({"version": "1", "url": ""})",
                                         R"({"version": "1", "url": "SECRET.example/1.3"})",
                                         R"({"version": "1", "url": "https://host/SECRET here"})",
                                         R"({"version": "1", "url": "https://host/\nSECRET"})",
                                         R"({"version": "1", "url": "https:"})",
                                         R"({"version": "1", "url": "https:///SECRET"})",
                                         R"({"version": "1", "url": "https://SECRET@/"})",
                                         R"({"version": "1", "url": "https://:443/SECRET"})",
                                         R"({"version": "1", "url": "mailto:SECRET@a.example"})",
                                         R"({"version": "1", "url": "ftp://SECRET/1.3"})",
                                         R"({"version": "1", "url": "file:///SECRET"})"));
INSTANTIATE_TEST_SUITE_P(
    NotesOfAWrongType, UndecodableFeed,
    testing::Values(R"({"version": "1", "url": "http://a", "notes": 1})",
                    R"({"version": "1", "url": "http://a", "notes": false})",
                    R"({"version": "1", "url": "http://a", "notes": ["SECRET"]})"));

} // namespace
} // namespace brellowind
