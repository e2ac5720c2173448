#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

namespace brellowind::benchmarks {

/// Makes the compiler believe that `value` is looked at.
template <typename Value>
void keep(const Value& value) {
    asm volatile("" : : "r,m"(&value) : "memory");
}

/// Seconds that one call of each of `works` takes at best. They take turns, so that what else the
/// machine does meets all of them alike; each gets `seconds` in all.
inline std::vector<double> race(const std::vector<std::function<void()>>& works, double seconds) {
    using Clock = std::chrono::steady_clock;
    constexpr double sample = 0.002; ///< long enough for the clock
    const auto timed = [](const std::function<void()>& work, int calls) {
        const auto start = Clock::now();
        for (int i = 0; i < calls; ++i)
            work();
        return std::chrono::duration<double>(Clock::now() - start).count();
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
    const auto end =
        Clock::now() + std::chrono::duration<double>(seconds * static_cast<double>(works.size()));
    do {
        for (std::size_t i = 0; i < works.size(); ++i)
            best[i] = std::min(best[i], timed(works[i], calls[i]) / calls[i]);
    } while (Clock::now() < end);
    return best;
}

} // namespace brellowind::benchmarks
