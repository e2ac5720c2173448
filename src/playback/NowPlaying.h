// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Published.h"
#include "foundation/Task.h"
#include "platform/MainLoop.h"
#include "platform/Player.h"
#include "platform/TaskRunner.h"
#include "platform/Track.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace brellowind {

/// The track, state and position of Spotify. Polls the player once a second, with at most one open
/// request, and advances the position in between; no timer ticks while nothing plays. Must be owned
/// by a std::shared_ptr. Main thread only.
class NowPlaying : public std::enable_shared_from_this<NowPlaying> {
public:
    static constexpr std::chrono::milliseconds pollInterval{1000};
    static constexpr std::chrono::milliseconds tickInterval{50};
    static constexpr std::chrono::milliseconds confirmationDelay{150};

    /// Returns the wall-clock time.
    using Clock = std::function<std::chrono::system_clock::time_point()>;

    /// Inactive until `start()`. All services must outlive this object.
    NowPlaying(platform::MainLoop& mainLoop, TaskRunner& tasks, Clock clock,
               platform::Player& player);

    /// Starts or restarts monitoring, and polls at once.
    void start();

    /// Stops monitoring. The properties keep their values; an open request is dropped.
    void stop();

    /// Toggles `isPlaying` at once, sends the command, and polls 150 ms later.
    void togglePlayPause();

    Published<std::optional<Track>, NowPlaying> track{std::nullopt}; ///< absent if not running
    Published<bool, NowPlaying> isPlaying{false};
    Published<double, NowPlaying> positionSec{0}; ///< seconds; never clamped to the duration

private:
    void poll();
    void tick();
    void playerQuit();
    void apply(platform::Player::Snapshot reading);
    void setPlaying(bool playing);
    static Task<void> ask(std::weak_ptr<NowPlaying> monitor, platform::Player& player);
    static Task<void> confirmToggle(std::shared_ptr<NowPlaying> self);

    platform::MainLoop& mainLoop_;
    TaskRunner& tasks_;
    Clock clock_;
    platform::Player& player_;
    std::optional<TaskHandle> question_; ///< present while a request is open
    bool toggledSinceQuestion_ = false;
    std::unique_ptr<platform::Timer> timer_;
    std::unique_ptr<platform::RepeatingTimer> ticker_;   ///< paused while nothing plays
    std::chrono::system_clock::time_point lastSyncDate_; ///< of the last change of `positionSec`
};

} // namespace brellowind
