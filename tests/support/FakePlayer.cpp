// SPDX-License-Identifier: MIT

#include "support/FakePlayer.h"

#include "platform/Sleep.h"

#include <utility>

namespace brellowind::test {

Task<platform::Player::Answer> FakePlayer::read() {
    ++readings_;
    if (answerTime.count() > 0)
        co_await platform::sleep(mainLoop_, answerTime);
    co_return answer();
}

Task<void> FakePlayer::playPause() {
    ++toggles_;
    if (readable && obeysToggles)
        plays = !plays;
    co_return;
}

void FakePlayer::playSong(std::string nextTitle) {
    title = std::move(nextTitle);
    position = 0;
}

platform::Player::Answer FakePlayer::answer() const {
    if (!runs_)
        return NotRunning();
    if (!readable)
        return Unreadable();
    return Snapshot{Track(title, artist, album, durationMs,
                          artwork.empty() ? std::nullopt : std::optional(artwork)),
                    plays, position};
}

} // namespace brellowind::test
