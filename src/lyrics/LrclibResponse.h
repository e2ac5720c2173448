#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brellowind {

/// The texts in an answer of the lyrics service. One that is missing or null is empty.
struct LrclibResponse {
    std::string syncedLyrics;
    std::string plainLyrics;

    bool operator==(const LrclibResponse&) const = default;

    /// Absent unless `body` is a JSON object in which each text is a string, null or missing. Of a
    /// key that is repeated the last value counts. Everything else is checked to be JSON and not
    /// kept, so a body of a great many values takes little memory and time.
    static std::optional<LrclibResponse> decode(std::string_view body);
};

} // namespace brellowind
