#pragma once

#include <QObject>
#include <chrono>

namespace brellowind::test {

/// Watches the event loop of the thread that it is made on: how long one turn keeps that thread
/// from the next. Processor time of the thread counts, not the clock, so that a busy machine makes
/// no turn longer.
class LoopWatch : public QObject {
public:
    /// What a person would begin to notice as a stutter, here or on an instrumented build.
    static const std::chrono::milliseconds bearable;

    LoopWatch();

    /// The longest turn since the watch began, or was last told to forget.
    std::chrono::microseconds longestTurn() const { return longest_; }

    void forget();

private:
    void turn();

    std::chrono::microseconds turnBegan_;
    std::chrono::microseconds longest_{0};
};

} // namespace brellowind::test
