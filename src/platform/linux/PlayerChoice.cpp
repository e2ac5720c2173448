// SPDX-License-Identifier: MIT

#include "platform/linux/PlayerChoice.h"

#include <algorithm>

namespace brellowind::platform {
namespace {

using State = PlayerCandidate::State;

} // namespace

std::optional<PlayerChoice> choosePlayer(std::span<const PlayerCandidate> candidates) {
    const auto first = [&](State state) {
        return std::ranges::find(candidates, state, &PlayerCandidate::state);
    };
    const auto has = [&](State state) { return first(state) != candidates.end(); };
    const auto indexOf = [&](State state) {
        return PlayerChoice(static_cast<std::size_t>(first(state) - candidates.begin()));
    };

    if (has(State::asked))
        return std::nullopt;
    if (has(State::playing))
        return indexOf(State::playing);
    const bool lateOneMayPlay = std::ranges::any_of(candidates, [](const auto& candidate) {
        return candidate.state == State::late && candidate.playedBefore;
    });
    if (lateOneMayPlay)
        return std::nullopt;
    if (has(State::paused))
        return indexOf(State::paused);
    if (has(State::unreadable))
        return Player::Unreadable();
    if (has(State::late) && !has(State::withoutTrack))
        return std::nullopt;
    return Player::NotRunning();
}

} // namespace brellowind::platform
