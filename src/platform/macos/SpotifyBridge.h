// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Player.h"

#include <optional>
#include <string_view>

/// The scripts that drive the Spotify application, and the record that it answers them with.
namespace brellowind::platform::SpotifyBridge {

inline constexpr std::string_view bundleIdentifier = "com.spotify.client";

/// Separates the fields of the answer to the read-out script: the ASCII unit separator.
inline constexpr char fieldSeparator = '\x1F';

/// The state field of a player that plays.
inline constexpr std::string_view playingState = "playing";

inline constexpr std::string_view playPauseScript = R"(tell application "Spotify" to playpause)";

/// Answers seven fields joined by `fieldSeparator`: title, artist, album, duration in milliseconds,
/// artwork location, position in seconds (perhaps with a decimal comma), state. Answers the empty
/// text when Spotify does not run.
inline constexpr std::string_view readOutScript = R"(tell application "Spotify"
    if it is running then
        set sep to (ASCII character 31)
        set tName to name of current track
        set tArtist to artist of current track
        set tAlbum to album of current track
        set tDur to duration of current track
        set tArt to artwork url of current track
        set tPos to player position
        set tState to player state as string
        return tName & sep & tArtist & sep & tAlbum & sep & tDur & sep & tArt & sep & tPos & sep & tState
    else
        return ""
    end if
end tell)";

/// The reading that an answer to `readOutScript` holds. Absent when the answer has fewer than seven
/// fields; further ones are ignored. A number that cannot be read is 0, and so is a duration that
/// no track has (its seconds would not fit 64 bits).
std::optional<Player::Snapshot> snapshot(std::string_view answer);

} // namespace brellowind::platform::SpotifyBridge
