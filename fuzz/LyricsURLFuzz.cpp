// SPDX-License-Identifier: MIT

#include "Fuzz.h"
#include "foundation/AbsoluteURL.h"
#include "foundation/Utf8.h"
#include "lyrics/LrclibAPI.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <fuzzer/FuzzedDataProvider.h>

// Arbitrary tracks in lyrics URLs, and arbitrary texts as URLs.

namespace brellowind::fuzz {
namespace {

constexpr std::string_view origin = "https://lyrics.example";

bool isGraphic(char character) {
    return character > ' ' && character < '\x7F';
}

std::string decoded(std::string_view escaped) {
    std::string bytes;
    for (std::size_t i = 0; i < escaped.size(); ++i) {
        if (escaped[i] != '%') {
            bytes += escaped[i];
            continue;
        }
        unsigned byte = 0;
        std::from_chars(escaped.data() + i + 1, escaped.data() + i + 3, byte, 16);
        bytes += static_cast<char>(byte);
        i += 2;
    }
    return bytes;
}

/// Removes the first item of `query`, which must be named `name`. Returns its value.
std::string takeItem(std::string_view& query, std::string_view name) {
    const auto item = query.substr(0, query.find('&'));
    query.remove_prefix(std::min(item.size() + 1, query.size()));
    const auto equals = item.find('=');
    require(item.substr(0, equals) == name, "the items of the query are in their order");
    require(equals != std::string_view::npos, "an item has a value");
    return decoded(item.substr(equals + 1));
}

void requireAddressOf(std::string_view url, const Track& track) {
    constexpr std::string_view path = "/api/get?";
    require(isAbsoluteURL(url), "the address is an absolute URL");
    require(std::ranges::all_of(url, isGraphic), "it has no space or control character");
    require(url.starts_with(origin), "it asks the service");
    url.remove_prefix(origin.size());
    require(url.starts_with(path), "it asks for lyrics");
    url.remove_prefix(path.size());
    require(takeItem(url, "track_name") == track.title, "the title can be read back");
    require(takeItem(url, "artist_name") == track.artist, "the artist can be read back");
    require(takeItem(url, "album_name") == track.album, "the album can be read back");
    require(std::stoll(takeItem(url, "duration")) ==
                static_cast<long long>(std::trunc(track.durationMs / 1000)),
            "the duration is in whole seconds");
    require(url.empty(), "nothing else is asked");
}

/// A duration in milliseconds whose seconds fit 64 bits.
double anyDuration(FuzzedDataProvider& input) {
    constexpr double longest = 9.2e21;
    return input.ConsumeFloatingPointInRange(-longest, longest);
}

void requireURL(std::string_view text) {
    if (!isAbsoluteURL(text))
        return;
    require(std::ranges::all_of(text, isGraphic), "no space or control character is in a URL");
    require(text.find_first_of("\"<>\\^`{|}") == std::string_view::npos,
            "no character is in a URL that must be escaped there");
    require(text.find(':') > 0 && text.find(':') + 1 < text.size(), "a URL has a scheme");
}

} // namespace
} // namespace brellowind::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brellowind;
    fuzz::requireURL(fuzz::text(data, size));

    FuzzedDataProvider input(data, size);
    const auto durationMs = fuzz::anyDuration(input);
    auto title = input.ConsumeRandomLengthString();
    auto artist = input.ConsumeRandomLengthString();
    const Track track(std::move(title), std::move(artist), input.ConsumeRemainingBytesAsString(),
                      durationMs, std::nullopt);
    const auto url = LrclibAPI::requestURL(fuzz::origin, track);
    fuzz::require(url.has_value() == (utf8::isValid(track.title) && utf8::isValid(track.artist) &&
                                      utf8::isValid(track.album)),
                  "whatever is UTF-8 can be asked for");
    if (url)
        fuzz::requireAddressOf(*url, track);
    return 0;
}
