#pragma once

#include "platform/Track.h"

#include <optional>
#include <string_view>

/// The only place that talks to the Spotify application. Stateless; every call is independent and
/// synchronous, and fails by an absent result.
namespace brellowind::SpotifyBridge {

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

/// One reading of the player.
struct Snapshot {
    Snapshot(Track track, bool isPlaying, double positionSec);

    bool operator==(const Snapshot&) const = default;

    Track track;
    bool isPlaying;
    double positionSec; ///< seconds; 0 when unreadable
};

/// Whether an application with Spotify's bundle identifier runs at this moment.
bool isRunning();

/// Reads the player once. Absent when Spotify does not run, when the script fails (one line is then
/// written to the system log), or when the answer has fewer than seven fields.
std::optional<Snapshot> snapshot();

/// Sends the play/pause command. A failure shows in the system log only.
void playPause();

} // namespace brellowind::SpotifyBridge
