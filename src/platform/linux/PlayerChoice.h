#pragma once

#include "platform/Player.h"

#include <cstddef>
#include <optional>
#include <span>
#include <variant>

namespace brellowind::platform {

/// What is known of one of several players that have been asked.
struct PlayerCandidate {
    enum class State {
        asked, ///< has not answered yet
        late,  ///< has not answered for so long that it is waited for no longer than needed
        unreadable,
        withoutTrack,
        paused,
        playing,
    };

    State state;
    bool playedBefore = false; ///< according to its previous answer
};

/// The index of the player to show, or why none is shown.
using PlayerChoice = std::variant<std::size_t, Player::NotRunning, Player::Unreadable>;

/// Chooses among `candidates`, which are in the order of preference: the first that plays, else the
/// first that has a track. Absent while there is more to wait for: any answer that is not late, and
/// a late one if nobody else plays and that player did, or if nobody else has answered.
std::optional<PlayerChoice> choosePlayer(std::span<const PlayerCandidate> candidates);

} // namespace brellowind::platform
