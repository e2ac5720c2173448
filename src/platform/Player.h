// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Task.h"
#include "platform/Track.h"

#include <string_view>
#include <variant>

namespace brellowind::platform {

/// The player application. Main thread only; nothing here blocks.
class Player {
public:
    /// The prefix of all log lines about the player.
    static constexpr std::string_view logPrefix = "Spotify AppleScript error: ";

    struct Snapshot {
        bool operator==(const Snapshot&) const = default;

        Track track;
        bool isPlaying;
        double positionSec; ///< seconds, when the answer was made; 0 if unreadable
    };

    /// The player is not running, or has no track loaded.
    struct NotRunning {
        bool operator==(const NotRunning&) const = default;
    };

    /// The player is running but its answer is unusable.
    struct Unreadable {
        bool operator==(const Unreadable&) const = default;
    };

    using Answer = std::variant<NotRunning, Unreadable, Snapshot>;

    virtual ~Player() = default;

    /// Asks what is playing. Completes when the player answers, however late, or quits. Call again
    /// only after the previous call has completed. Logs the first of consecutive failures, and a
    /// slow answer.
    virtual Task<Answer> read() = 0;

    /// Completes when the player has accepted the command. Logs a failure.
    virtual Task<void> playPause() = 0;
};

} // namespace brellowind::platform
