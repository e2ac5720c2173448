#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace brellowind::platform {

/// A scheduled timer. Destroying it unschedules it; its handler may destroy it.
class Timer {
public:
    virtual ~Timer() = default;
};

/// A timer that fires again and again.
class RepeatingTimer : public Timer {
public:
    /// While it rests it does not fire, and wakes nothing; after that it fires within an interval.
    /// It is made awake.
    virtual void setResting(bool resting) = 0;
};

/// Work that is wanted once before the main loop rests, however often it is asked for.
/// Destroying it withdraws it; its handler may destroy it.
class NextTurn {
public:
    virtual ~NextTurn() = default;

    /// Asks for the handler to run on the next turn of the main loop. Asking again before it has
    /// run changes nothing. Allocates nothing.
    virtual void request() = 0;
};

/// The main thread's event loop. All handlers run on the main thread, never inside the call that
/// schedules them.
class MainLoop {
public:
    using Handler = std::function<void()>;

    virtual ~MainLoop() = default;

    /// `delay` counts on a monotonic clock; 0 means the next turn.
    virtual std::unique_ptr<Timer> scheduleOnce(std::chrono::milliseconds delay,
                                                Handler handler) = 0;
    virtual std::unique_ptr<RepeatingTimer> scheduleRepeating(std::chrono::milliseconds interval,
                                                              Handler handler) = 0;
    virtual std::unique_ptr<NextTurn> onNextTurn(Handler handler) = 0;
};

} // namespace brellowind::platform
