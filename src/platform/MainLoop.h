// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace brellowind::platform {

/// A scheduled timer. Destroying it cancels it; its handler may destroy it.
class Timer {
public:
    virtual ~Timer() = default;
};

/// A timer that fires at regular intervals.
class RepeatingTimer : public Timer {
public:
    /// Timers start running. A resumed timer fires after at most one interval.
    virtual void setPaused(bool paused) = 0;
};

/// Runs a handler on the next turn of the main loop, when requested. Destroying this object cancels
/// a pending run; the handler may destroy it.
class NextTurn {
public:
    virtual ~NextTurn() = default;

    /// Does nothing if a run is pending.
    virtual void request() = 0;
};

/// The main thread's event loop. A handler never runs within the call that schedules it.
class MainLoop {
public:
    using Handler = std::function<void()>;

    virtual ~MainLoop() = default;

    /// `delay` is measured by a monotonic clock; 0 means the next turn.
    virtual std::unique_ptr<Timer> scheduleOnce(std::chrono::milliseconds delay,
                                                Handler handler) = 0;
    virtual std::unique_ptr<RepeatingTimer> scheduleRepeating(std::chrono::milliseconds interval,
                                                              Handler handler) = 0;
    virtual std::unique_ptr<NextTurn> onNextTurn(Handler handler) = 0;

    /// Ends the program on a later turn.
    virtual void quit() = 0;
};

} // namespace brellowind::platform
