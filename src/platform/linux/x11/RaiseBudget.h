// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <deque>

namespace brellowind::platform {

/// Rate limit for raising a window, so that two windows that both raise themselves do not loop:
/// five raises within a second, then a pause, with exponential backoff.
class RaiseBudget {
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    static constexpr std::size_t raisesInAWindow = 5;
    static constexpr std::chrono::milliseconds window{1000};
    static constexpr std::chrono::milliseconds firstPause{2000};
    static constexpr std::chrono::milliseconds longestPause{60000};

    /// Returns whether the window may raise itself at `now`, and counts the raise.
    bool spend(TimePoint now);

    /// The end of the pause, after a refusal.
    TimePoint pauseEnd() const { return pauseEnd_; }

private:
    std::deque<TimePoint> raises_; ///< within the last second
    std::chrono::milliseconds pause_{0};
    TimePoint pauseEnd_{};
};

} // namespace brellowind::platform
