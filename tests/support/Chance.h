// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <random>
#include <vector>

namespace brellowind::test {

/// A pseudo-random generator for tests. A seed gives the same sequence on every machine.
class Chance {
public:
    explicit Chance(std::uint64_t seed) : engine_(seed) {}

    /// A number from 0 to `count` - 1.
    int below(int count) { return static_cast<int>(engine_() % static_cast<unsigned>(count)); }

    /// True with probability 1/`count`.
    bool onceIn(int count) { return below(count) == 0; }

    template <typename Value>
    const Value& oneOf(const std::vector<Value>& values) {
        return values[static_cast<std::size_t>(below(static_cast<int>(values.size())))];
    }

private:
    std::mt19937_64 engine_;
};

} // namespace brellowind::test
