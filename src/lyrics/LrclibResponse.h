// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brellowind {

/// The texts in an answer of the lyrics service. Missing and null texts are empty.
struct LrclibResponse {
    std::string syncedLyrics;
    std::string plainLyrics;

    bool operator==(const LrclibResponse&) const = default;

    /// Returns nullopt unless `body` is a JSON object in which each text is a string, null or
    /// missing. The last of repeated keys counts. Other values are validated but not stored, so a
    /// hostile body takes little memory and time.
    static std::optional<LrclibResponse> decode(std::string_view body);
};

} // namespace brellowind
