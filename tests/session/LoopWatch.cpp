// SPDX-License-Identifier: MIT

#include "session/LoopWatch.h"

#include "session/ProcessUse.h"

#include <QAbstractEventDispatcher>
#include <QCryptographicHash>
#include <algorithm>
#include <ctime>

namespace brellowind::test {
namespace {

std::chrono::microseconds threadTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec));
}

} // namespace

std::chrono::microseconds LoopWatch::bearable() {
    static const QByteArray data(4 << 20, 'x');
    const auto before = threadTime();
    QCryptographicHash::hash(data, QCryptographicHash::Sha1);
    return (threadTime() - before) * (isInstrumented ? 100 : 5);
}

LoopWatch::LoopWatch() : turnBegan_(threadTime()) {
    const auto* dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &LoopWatch::turn);
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, &LoopWatch::turn);
}

void LoopWatch::forget() {
    turnBegan_ = threadTime();
    longest_ = {};
}

std::chrono::microseconds LoopWatch::longestTurnOf(const std::function<void()>& act) {
    for (int repetition = 0; repetition < 3; ++repetition) {
        forget();
        act();
        if (longest_ < bearable())
            break;
    }
    return longest_;
}

void LoopWatch::turn() {
    const auto now = threadTime();
    longest_ = std::max(longest_, now - turnBegan_);
    turnBegan_ = now;
}

} // namespace brellowind::test
