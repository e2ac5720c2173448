// SPDX-License-Identifier: MIT

#include "lyrics/LrclibAPI.h"

#include "foundation/PercentEncoding.h"
#include "foundation/Utf8.h"
#include "lyrics/LRCParser.h"
#include "lyrics/LrclibResponse.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace brellowind::LrclibAPI {
namespace {

constexpr int notFoundStatus = 404;

/// Appends `value`, percent-encoding all but the unreserved characters.
void appendEscaped(std::string& url, std::string_view value) {
    for (const char character : value) {
        const auto byte = static_cast<unsigned char>(character);
        const bool unreserved = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
                                (byte >= '0' && byte <= '9') || byte == '-' || byte == '.' ||
                                byte == '_' || byte == '~';
        if (unreserved)
            url += character;
        else
            appendEscape(url, character);
    }
}

std::int64_t wholeSeconds(double durationMs) {
    constexpr double limit = 9223372036854775808.0; // 2^63, exact as a double
    const double seconds = durationMs / 1000.0;
    if (!std::isfinite(seconds) || seconds < -limit || seconds >= limit) {
        std::fputs("Fatal error: the duration of a track is not representable in whole seconds\n",
                   stderr);
        std::abort();
    }
    return static_cast<std::int64_t>(seconds);
}

std::string userAgent(const std::string& websiteURL) {
    const std::string program = "Brellowind v0.1";
    return websiteURL.empty() ? program : program + " (" + websiteURL + ')';
}

} // namespace

std::optional<std::string> requestURL(std::string_view origin, const Track& track) {
    const std::string duration = std::to_string(wholeSeconds(track.durationMs));
    const std::pair<std::string_view, std::string_view> items[] = {
        {"track_name", track.title},
        {"artist_name", track.artist},
        {"album_name", track.album},
        {"duration", duration},
    };
    std::string url = std::string(origin) + "/api/get";
    char separator = '?';
    for (const auto& [name, value] : items) {
        if (!utf8::isValid(value))
            return std::nullopt;
        url.append({separator}).append(name).append("=");
        appendEscaped(url, value);
        separator = '&';
    }
    return url;
}

LyricsState interpret(int status, std::string_view body) {
    if (status == notFoundStatus)
        return LyricsState::notFound();
    // Whatever the status: an error may carry a valid object.
    auto response = LrclibResponse::decode(body);
    if (!response)
        return LyricsState::failed();
    auto& [synced, plain] = *response;
    if (!synced.empty()) {
        auto lines = LRCParser::parse(std::move(synced));
        return lines.empty() ? LyricsState::notFound() : LyricsState::loaded(std::move(lines));
    }
    if (!plain.empty())
        return LyricsState::plain(std::move(plain));
    return LyricsState::notFound();
}

Task<LyricsState> fetch(platform::HttpClient& http, const platform::ProductConstants& constants,
                        Track track) {
    auto url = requestURL(constants.lyricsOrigin, track);
    if (!url)
        co_return LyricsState::failed();
    platform::HttpRequest request{
        .url = std::move(*url),
        .headers = {{"User-Agent", userAgent(constants.websiteURL)}},
        .maximumBodyBytes = maximumBodyBytes,
    };
    const auto result = co_await http.fetch(std::move(request));
    const auto* response = std::get_if<platform::HttpResponse>(&result);
    co_return response ? interpret(response->status, response->body) : LyricsState::failed();
}

} // namespace brellowind::LrclibAPI
