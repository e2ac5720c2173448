// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Player.h"

#include <cstddef>
#include <optional>
#include <span>
#include <variant>

namespace brellowind::platform {

/// The state of one of several players that have been asked.
struct PlayerCandidate {
    enum class State {
        asked, ///< has not answered
        late,  ///< has not answered for a long time
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

/// Chooses among `candidates`, in order of preference: the first that plays, else the first with a
/// track. Returns nullopt if the choice must wait: for every answer that is not late, and for a
/// late one if no other player plays and that one did, or if no other player has answered.
std::optional<PlayerChoice> choosePlayer(std::span<const PlayerCandidate> candidates);

} // namespace brellowind::platform
