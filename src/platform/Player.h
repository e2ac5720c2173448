#pragma once

#include "foundation/Task.h"
#include "platform/Track.h"

#include <string_view>
#include <variant>

namespace brellowind::platform {

/// The player application. Main thread only; nothing here blocks.
class Player {
public:
    /// What every line about the player in the system log begins with.
    static constexpr std::string_view logPrefix = "Spotify AppleScript error: ";

    /// One reading.
    struct Snapshot {
        bool operator==(const Snapshot&) const = default;

        Track track;
        bool isPlaying;
        double positionSec; ///< seconds at the moment of the answer; 0 when unreadable
    };

    /// The player does not run, or has no track loaded.
    struct NotRunning {
        bool operator==(const NotRunning&) const = default;
    };

    /// The player runs but its answer cannot be used.
    struct Unreadable {
        bool operator==(const Unreadable&) const = default;
    };

    using Answer = std::variant<NotRunning, Unreadable, Snapshot>;

    virtual ~Player() = default;

    /// Asks once what is playing. Ends when the player answers, however late that is, and at once
    /// when it quits. Ask again only after the previous question has ended. The first of several
    /// failures in a row, and a player that takes long to answer, are written to the system log.
    virtual Task<Answer> read() = 0;

    /// Ends when the player has taken the command. A failure is written to the system log.
    virtual Task<void> playPause() = 0;
};

} // namespace brellowind::platform
