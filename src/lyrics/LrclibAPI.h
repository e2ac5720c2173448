// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Task.h"
#include "lyrics/LyricsState.h"
#include "platform/HttpClient.h"
#include "platform/ProductConstants.h"
#include "platform/Track.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// The LRCLIB lyrics service.
namespace brellowind::LrclibAPI {

/// A longer answer is a transport failure. Lyrics are a few kilobytes; parsing a larger hostile
/// answer would block the main loop for longer than a frame.
inline constexpr std::size_t maximumBodyBytes = 1024 * 1024;

/// The URL at `origin` for the lyrics of `track`. Returns nullopt if a text of the track is not
/// valid UTF-8. Aborts if the duration is not finite or its whole seconds do not fit 64 bits.
std::optional<std::string> requestURL(std::string_view origin, const Track& track);

/// Converts an answer of the service to `loaded`, `plain`, `notFound` or `failed`.
LyricsState interpret(int status, std::string_view body);

/// Fetches the lyrics of `track`. Every failure, including cancellation, is `failed`; there are no
/// retries. `http` and `constants` must outlive the task.
Task<LyricsState> fetch(platform::HttpClient& http, const platform::ProductConstants& constants,
                        Track track);

} // namespace brellowind::LrclibAPI
