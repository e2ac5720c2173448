// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <chrono>

namespace brellowind::test {

/// Measures the longest turn of the current thread's event loop, in CPU time of the thread, which
/// does not depend on other load.
class LoopWatch : public QObject {
public:
    /// A noticeable stutter; longer in instrumented builds.
    static const std::chrono::milliseconds bearable;

    LoopWatch();

    /// The longest turn since construction or the last reset.
    std::chrono::microseconds longestTurn() const { return longest_; }

    void forget();

private:
    void turn();

    std::chrono::microseconds turnBegan_;
    std::chrono::microseconds longest_{0};
};

} // namespace brellowind::test
