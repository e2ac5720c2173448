// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Log.h"
#include "platform/MainLoop.h"
#include "platform/Player.h"
#include "platform/macos/ScriptHost.h"

#include <optional>
#include <string_view>

namespace brellowind::platform {

/// The Spotify application, driven by scripts. The main thread waits for each answer, at most two
/// seconds. Of equal failures in a row, such as a permission that is denied for ever, the first one
/// is written to the log.
class ScriptPlayer final : public Player {
public:
    /// All outlive it.
    ScriptPlayer(ScriptHost& scripts, MainLoop& mainLoop, Log& log)
        : scripts_(scripts), mainLoop_(mainLoop), log_(log) {}

    /// Runs no script unless the application runs, nor while another script has not ended.
    Task<Answer> read() override;

    /// Waits for a script that has not ended.
    Task<void> playPause() override;

private:
    std::optional<std::string> run(std::string_view script);

    ScriptHost& scripts_;
    MainLoop& mainLoop_;
    Log& log_;
    bool isRunning_ = false;          ///< whether a script has not ended
    std::optional<long> lastFailure_; ///< its number; absent after a success
};

} // namespace brellowind::platform
