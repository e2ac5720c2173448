// SPDX-License-Identifier: MIT

#include "soak/Growth.h"

#include <algorithm>
#include <vector>

namespace brellowind::test {
namespace {

double median(std::span<const double> samples) {
    std::vector<double> sorted(samples.begin(), samples.end());
    const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
    std::nth_element(sorted.begin(), middle, sorted.end());
    return *middle;
}

} // namespace

Growth growth(std::span<const double> samples) {
    const std::size_t fifth = samples.size() / 5;
    return {median(samples.subspan(fifth, fifth)), median(samples.last(fifth))};
}

} // namespace brellowind::test
