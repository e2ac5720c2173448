// SPDX-License-Identifier: MIT

#pragma once

#include <span>

namespace brellowind::test {

/// The growth of a quantity during a long run: its medians over the second and over the last fifth.
/// The first fifth is for warming up; medians ignore single peaks.
struct Growth {
    double early = 0;
    double late = 0;

    double amount() const { return late - early; }
};

/// At least five samples, in order of time.
Growth growth(std::span<const double> samples);

} // namespace brellowind::test
