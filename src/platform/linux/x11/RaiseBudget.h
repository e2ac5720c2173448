#pragma once

#include <chrono>
#include <deque>
#include <optional>

namespace brellowind::platform {

/// How often a window may bring itself back to the top, so that two that both want to be there do
/// not fight for ever: five times within any second, then not at all during a pause, which is twice
/// as long after each round of the same fight.
class RaiseBudget {
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    static constexpr std::size_t raisesInAWindow = 5;
    static constexpr std::chrono::milliseconds window{1000};
    static constexpr std::chrono::milliseconds firstPause{2000};
    static constexpr std::chrono::milliseconds longestPause{60000};

    /// Whether the window may raise itself at `now`; if so, that counts as a raise.
    bool spend(TimePoint now);

    /// When it may again, after a refusal.
    TimePoint pauseEnd() const { return pauseEnd_; }

private:
    std::deque<TimePoint> raises_; ///< those of the last second
    std::chrono::milliseconds pause_{0};
    TimePoint pauseEnd_{};
};

} // namespace brellowind::platform
