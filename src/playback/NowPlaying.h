#pragma once

#include "foundation/Published.h"
#include "foundation/Task.h"
#include "platform/Clock.h"
#include "platform/MainLoop.h"
#include "platform/Player.h"
#include "platform/TaskRunner.h"
#include "platform/Track.h"

#include <chrono>
#include <memory>
#include <optional>

namespace brellowind {

/// What Spotify plays, whether it plays, and where playback stands. It asks the player once a
/// second, one question at a time, and advances the position itself in between; nothing ticks while
/// nothing plays. Held by a std::shared_ptr. Main thread only.
class NowPlaying : public std::enable_shared_from_this<NowPlaying> {
public:
    static constexpr std::chrono::milliseconds pollInterval{1000};
    static constexpr std::chrono::milliseconds tickInterval{50};
    static constexpr std::chrono::milliseconds confirmationDelay{150};

    /// Idle: the player is not asked before `start()`. All services must outlive it.
    NowPlaying(platform::MainLoop& mainLoop, TaskRunner& tasks, const platform::Clock& clock,
               platform::Player& player);

    /// Begins monitoring with a reading at once. Monitoring already, it begins anew.
    void start();

    /// Ends monitoring. The properties keep their values; an answer that is due is dropped.
    void stop();

    /// Flips `isPlaying` at once, sends the command, and asks the player 150 ms later.
    void togglePlayPause();

    Published<std::optional<Track>, NowPlaying> track{std::nullopt}; ///< absent: not running
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
    const platform::Clock& clock_;
    platform::Player& player_;
    std::optional<TaskHandle> question_; ///< present while the player has not answered it
    bool toggledSinceQuestion_ = false;
    std::unique_ptr<platform::Timer> timer_;
    std::unique_ptr<platform::RepeatingTimer> ticker_; ///< rests while nothing plays
    platform::WallTime lastSyncDate_; ///< when `positionSec` was last read or advanced
};

} // namespace brellowind
