// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <ctime>
#include <functional>
#include <vector>

namespace brellowind::benchmarks {

/// Prevents the compiler from optimising `value` away.
template <typename Value>
void keep(const Value& value) {
    asm volatile("" : : "r,m"(&value) : "memory");
}

/// CPU time of this thread in seconds.
inline double processorTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// The minimum CPU time of one call of each of `works`, in seconds. Measured alternately, so that
/// other load affects all of them alike; each runs for `seconds` in total.
inline std::vector<double> race(const std::vector<std::function<void()>>& works, double seconds) {
    constexpr double sample = 0.002; ///< limited by the clock's resolution
    const auto timed = [](const std::function<void()>& work, int calls) {
        const double start = processorTime();
        for (int i = 0; i < calls; ++i)
            work();
        return processorTime() - start;
    };
    std::vector<int> calls;
    std::vector<double> best;
    for (const auto& work : works) {
        int count = 1;
        while (timed(work, count) < sample && count < 1'000'000)
            count *= 2;
        calls.push_back(count);
        best.push_back(timed(work, count) / count);
    }
    const double end = processorTime() + seconds * static_cast<double>(works.size());
    do {
        for (std::size_t i = 0; i < works.size(); ++i)
            best[i] = std::min(best[i], timed(works[i], calls[i]) / calls[i]);
    } while (processorTime() < end);
    return best;
}

} // namespace brellowind::benchmarks
