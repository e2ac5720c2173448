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

/// A longer answer counts as a transport failure. Lyrics are a few kilobytes; what is nothing but
/// brackets and was read whole would keep the main loop for longer than a frame may take.
inline constexpr std::size_t maximumBodyBytes = 1024 * 1024;

/// The address that asks `origin` for the lyrics of `track`. Absent when a text of the track is not
/// valid UTF-8. A duration that is not finite, or whose whole seconds do not fit 64 bits, stops the
/// program.
std::optional<std::string> requestURL(std::string_view origin, const Track& track);

/// What an answer of the service means: `loaded`, `plain`, `notFound` or `failed`.
LyricsState interpret(int status, std::string_view body);

/// Asks the service, whose origin is among `constants`, once for the lyrics of `track`. Every
/// failure, cancellation included, is `failed`; nothing is retried. The referred objects must
/// outlive the task.
Task<LyricsState> fetch(platform::HttpClient& http, const platform::ProductConstants& constants,
                        Track track);

} // namespace brellowind::LrclibAPI
