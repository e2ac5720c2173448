#pragma once

#include <optional>
#include <string>

namespace brellowind {

/// One track as the player reports it. Texts are UTF-8 and may be empty.
///
/// Equality compares every field; `id` tells whether two readings are the same song.
struct Track {
    /// Title, artist and album joined by "|", which is not escaped.
    std::string id() const { return title + '|' + artist + '|' + album; }

    bool operator==(const Track&) const = default;

    std::string title;
    std::string artist;
    std::string album;
    double durationMs; ///< milliseconds; 0 when the player's value was unreadable
    std::optional<std::string> artworkURL; ///< kept as text; absent when the player reported none
};

} // namespace brellowind
