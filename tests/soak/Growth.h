#pragma once

#include <span>

namespace brellowind::test {

/// What became of a quantity in the course of a long run: its medians over the second and over the
/// last fifth of the run. The first fifth is for getting warm; a median ignores single peaks.
struct Growth {
    double early = 0;
    double late = 0;

    double amount() const { return late - early; }
};

/// At least five samples, in the order in which they were taken.
Growth growth(std::span<const double> samples);

} // namespace brellowind::test
