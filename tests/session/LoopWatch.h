// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <chrono>
#include <functional>

namespace brellowind::test {

/// Measures the longest turn of the current thread's event loop, in CPU time of the thread, which
/// does not depend on other load.
class LoopWatch : public QObject {
public:
    /// The bound of a turn: no longer than this thread takes now to hash 20 MiB. Measures that
    /// speed. Longer in instrumented builds.
    static std::chrono::microseconds bearable();

    LoopWatch();

    /// The longest turn since construction or the last reset.
    std::chrono::microseconds longestTurn() const { return longest_; }

    void forget();

    /// Repeats `act` up to three times until none of its turns is unbearable: other load on the
    /// machine lengthens turns. Returns the longest turn of the last repetition.
    std::chrono::microseconds longestTurnOf(const std::function<void()>& act);

private:
    void turn();

    std::chrono::microseconds turnBegan_;
    std::chrono::microseconds longest_{0};
};

} // namespace brellowind::test
