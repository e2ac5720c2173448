// SPDX-License-Identifier: MIT

#include "lyrics/LyricsState.h"

#include <gtest/gtest.h>
#include <vector>

namespace brellowind {
namespace {

using Case = LyricsState::Case;

/// One state of each case.
std::vector<LyricsState> oneOfEach() {
    return {LyricsState::idle(),
            LyricsState::loading(),
            LyricsState::loaded({LyricLine(1, "words")}),
            LyricsState::plain("words"),
            LyricsState::notFound(),
            LyricsState::failed()};
}

TEST(LyricsState, TellsItsCase) {
    std::vector<Case> cases;
    for (const auto& state : oneOfEach())
        cases.push_back(state.which());
    EXPECT_EQ(cases, (std::vector{Case::idle, Case::loading, Case::loaded, Case::plain,
                                  Case::notFound, Case::failed}));
}

TEST(LyricsState, EqualsItsCopiesAndNoOtherCase) {
    const auto states = oneOfEach();
    const auto copies = states; // NOLINT(performance-unnecessary-copy-initialization)
    for (std::size_t i = 0; i < states.size(); ++i)
        for (std::size_t j = 0; j < copies.size(); ++j)
            EXPECT_EQ(states[i] == copies[j], i == j) << i << " and " << j;
}

TEST(LyricsState, LoadedCarriesItsLinesAndNoOtherCaseDoes) {
    const LyricLine first(1, "a");
    const LyricLine second(2, "b");
    const auto loaded = LyricsState::loaded({first, second});
    EXPECT_EQ(loaded.lines(), (std::vector{first, second}));
    EXPECT_EQ(loaded.text(), "");
    for (const auto& state : oneOfEach())
        EXPECT_EQ(state.lines().empty(), state.which() != Case::loaded);
}

TEST(LyricsState, PlainCarriesItsTextAndNoOtherCaseDoes) {
    EXPECT_EQ(LyricsState::plain(" a\nb ").text(), " a\nb ");
    for (const auto& state : oneOfEach())
        EXPECT_EQ(state.text().empty(), state.which() != Case::plain);
}

TEST(LyricsState, LoadedStatesAreEqualLineByLine) {
    const LyricLine first(1, "a");
    const LyricLine second(2, "b");
    EXPECT_EQ(LyricsState::loaded({first, second}), LyricsState::loaded({first, second}));
    EXPECT_NE(LyricsState::loaded({first, second}), LyricsState::loaded({second, first}));
    EXPECT_NE(LyricsState::loaded({first, second}), LyricsState::loaded({first}));
    EXPECT_NE(LyricsState::loaded({first}), LyricsState::loaded({LyricLine(1, "a")}))
        << "the lines differ in their ids";
}

TEST(LyricsState, PlainStatesAreEqualByTheirTexts) {
    EXPECT_EQ(LyricsState::plain("a"), LyricsState::plain("a"));
    EXPECT_NE(LyricsState::plain("a"), LyricsState::plain("a "));
}

} // namespace
} // namespace brellowind
