#pragma once

#include <algorithm>
#include <ctime>
#include <functional>
#include <vector>

namespace brellowind::benchmarks {

/// Makes the compiler believe that `value` is looked at.
template <typename Value>
void keep(const Value& value) {
    asm volatile("" : : "r,m"(&value) : "memory");
}

/// Seconds of processor time that this thread has taken.
inline double processorTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Seconds of processor time that one call of each of `works` takes at best. They take turns, so
/// that what else the machine does meets all of them alike; each gets `seconds` in all.
inline std::vector<double> race(const std::vector<std::function<void()>>& works, double seconds) {
    constexpr double sample = 0.002; ///< long enough for the clock
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
