// SPDX-License-Identifier: MIT

#include "platform/macos/ScriptPlayer.h"

#include "platform/Sleep.h"
#include "platform/macos/SpotifyBridge.h"

#include <string>
#include <utility>

namespace brellowind::platform {
namespace {

using namespace std::chrono_literals;

/// Until the next look whether a script has ended.
constexpr auto pause = 50ms;

/// Without the limit the system waits for one or two minutes.
std::string bounded(std::string_view script) {
    return std::string("with timeout of 2 seconds\n").append(script).append("\nend timeout");
}

} // namespace

Task<Player::Answer> ScriptPlayer::read() {
    if (isRunning_)
        co_return Unreadable();
    if (!scripts_.isRunning(SpotifyBridge::bundleIdentifier))
        co_return NotRunning();
    const auto text = run(SpotifyBridge::readOutScript);
    if (!text)
        co_return Unreadable();
    if (auto reading = SpotifyBridge::snapshot(*text))
        co_return std::move(*reading);
    co_return Unreadable(); // also of an application that has quit in between
}

Task<void> ScriptPlayer::playPause() {
    while (isRunning_) {
        const bool goesOn = co_await sleep(mainLoop_, pause);
        if (!goesOn)
            co_return;
    }
    run(SpotifyBridge::playPauseScript);
}

/// The text of its result.
std::optional<std::string> ScriptPlayer::run(std::string_view script) {
    isRunning_ = true;
    auto [text, failure] = scripts_.run(bounded(script));
    isRunning_ = false;
    if (!failure) {
        lastFailure_.reset();
        return std::move(text);
    }
    if (std::exchange(lastFailure_, failure->number) != failure->number)
        log_.write(std::string(logPrefix).append(failure->description));
    return std::nullopt;
}

} // namespace brellowind::platform
