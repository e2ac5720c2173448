// SPDX-License-Identifier: MIT

#include "lyrics/WholeResponse.h"

#include <nlohmann/json.hpp>

namespace brellowind::test {

using nlohmann::json;

std::optional<LrclibResponse> decodeWhole(std::string_view body) try {
    if (body.find('\0') != std::string_view::npos)
        return std::nullopt;
    const auto object = json::parse(body);
    if (!object.is_object())
        return std::nullopt;
    LrclibResponse response;
    const auto read = [&object](const char* key, std::string& text) {
        const auto value = object.value(key, json());
        if (value.is_string())
            text = value;
        return value.is_string() || value.is_null();
    };
    if (!read("syncedLyrics", response.syncedLyrics) || !read("plainLyrics", response.plainLyrics))
        return std::nullopt;
    return response;
} catch (const json::parse_error&) {
    return std::nullopt;
}

} // namespace brellowind::test
