// SPDX-License-Identifier: MIT

#include "Fuzz.h"
#include "foundation/Utf8.h"
#include "lyrics/LrclibAPI.h"
#include "lyrics/WholeResponse.h"

#include <algorithm>
#include <nlohmann/json.hpp>

// Arbitrary bytes as the body of an answer of the lyrics service.

namespace brellowind::fuzz {
namespace {

using Case = LyricsState::Case;

void requireFilled(const LyricsState& state) {
    require(state.lines().empty() == (state.which() != Case::loaded),
            "there are lines exactly when lyrics are loaded");
    require(state.text().empty() == (state.which() != Case::plain),
            "there are words exactly when they have no times");
    require(std::ranges::is_sorted(state.lines(), {}, &LyricLine::time),
            "lines are sorted by time");
    require(std::ranges::all_of(state.lines(),
                                [](const auto& line) { return utf8::isValid(line.text); }),
            "every line is UTF-8");
    require(utf8::isValid(state.text()), "words without times are UTF-8");
}

/// A parser of the whole document gives the same texts, unless a number overflows a double.
void requireWhatTheWholeBodySays(std::string_view body) try {
    require(LrclibResponse::decode(body) == test::decodeWhole(body),
            "the texts are those of the whole body");
} catch (const nlohmann::json::out_of_range&) {
}

} // namespace
} // namespace brellowind::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brellowind;
    using fuzz::Case;
    const auto body = fuzz::text(data, size);
    const auto state = LrclibAPI::interpret(200, body);
    fuzz::requireFilled(state);
    fuzz::requireWhatTheWholeBodySays(body);
    fuzz::require((state.which() == Case::failed) == !LrclibResponse::decode(body),
                  "exactly what cannot be decoded fails");
    fuzz::require(state.which() != Case::idle && state.which() != Case::loading,
                  "an answer is an outcome");
    fuzz::require(LrclibAPI::interpret(500, body).which() == state.which(),
                  "an error's body counts like any other");
    fuzz::require(LrclibAPI::interpret(404, body) == LyricsState::notFound(),
                  "not found is not found, whatever the body");
    return 0;
}
