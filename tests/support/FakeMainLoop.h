// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MainLoop.h"

#include <list>

namespace brellowind::test {

/// A main loop that is run by the test, with simulated time.
class FakeMainLoop final : public platform::MainLoop {
public:
    std::unique_ptr<platform::Timer> scheduleOnce(std::chrono::milliseconds delay,
                                                  Handler handler) override;
    std::unique_ptr<platform::RepeatingTimer> scheduleRepeating(std::chrono::milliseconds interval,
                                                                Handler handler) override;
    std::unique_ptr<platform::NextTurn> onNextTurn(Handler handler) override;
    void quit() override { ++quits; }

    /// Runs all due handlers without advancing time.
    void runTurns() { advance(std::chrono::milliseconds(0)); }

    /// Advances time by `duration` and runs each timer when it is due.
    void advance(std::chrono::milliseconds duration);

    std::chrono::milliseconds elapsed() const { return now_; }
    std::size_t wakeUps() const { return wakeUps_; } ///< number of times at which timers fired
    std::size_t timerCount() const { return timers_.size(); }
    std::size_t nextTurnCount() const { return nextTurns_.size(); }

    /// Number of running repeating timers of `interval`.
    std::size_t repeatingTimerCount(std::chrono::milliseconds interval) const;

    int quits = 0;

private:
    class FakeTimer;
    class FakeNextTurn;

    FakeTimer* nextDue(std::chrono::milliseconds until) const;
    void runNextTurns();

    std::chrono::milliseconds now_{0};
    std::size_t wakeUps_ = 0;
    std::chrono::milliseconds lastWakeUp_{-1};
    std::list<FakeTimer*> timers_; ///< in order of scheduling
    std::list<FakeNextTurn*> nextTurns_;
};

} // namespace brellowind::test
