// SPDX-License-Identifier: MIT

#include "FrameLog.h"

#include <cstdio>
#include <ctime>

namespace brellowind::benchmarks {
namespace {

double processorTime() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

} // namespace

FrameLog::FrameLog(SceneWindow& window) {
    connect(&window, &SceneWindow::frameShown, this, &FrameLog::frame);
}

void FrameLog::start() {
    durations_.clear();
    durations_.reserve(4096);
    last_ = processorTime();
}

void FrameLog::frame() {
    if (++frames_ == 1) {
        timespec time{};
        clock_gettime(CLOCK_MONOTONIC, &time);
        std::printf("frame %lld%09ld\n", static_cast<long long>(time.tv_sec), time.tv_nsec);
        std::fflush(stdout);
    }
    if (durations_.size() == durations_.capacity())
        return;
    const double now = processorTime();
    durations_.push_back(now - last_);
    last_ = now;
}

} // namespace brellowind::benchmarks
