// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>

namespace brellowind {

/// One track as the player reports it. Texts are UTF-8 and may be empty.
///
/// Equality compares all fields. Readings of the same song have the same `id`.
struct Track {
    /// Title, artist and album joined by an unescaped "|".
    std::string id() const { return title + '|' + artist + '|' + album; }

    bool operator==(const Track&) const = default;

    std::string title;
    std::string artist;
    std::string album;
    double durationMs;                     ///< milliseconds; 0 if unreadable
    std::optional<std::string> artworkURL; ///< not validated
};

} // namespace brellowind
