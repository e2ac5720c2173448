// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace brellowind {

/// Appends the percent escape of one byte to a URL.
inline void appendEscape(std::string& url, char character) {
    constexpr std::string_view hex = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(character);
    url.append({'%', hex[byte >> 4], hex[byte & 0xF]});
}

/// Makes a valid URL of a file URL that was written without escapes: percent-encodes spaces and
/// non-ASCII characters. Existing escapes are kept.
inline std::string fileURL(std::string_view text) {
    std::string url;
    for (const char character : text) {
        if (character == ' ' || static_cast<unsigned char>(character) > 0x7F)
            appendEscape(url, character);
        else
            url += character;
    }
    return url;
}

} // namespace brellowind
