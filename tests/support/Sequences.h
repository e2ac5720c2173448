// SPDX-License-Identifier: MIT

#pragma once

#include "support/Chance.h"

#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Model-based testing: compares the program with a model on pseudo-random sequences of steps.
namespace brellowind::test {

/// A difference between program and model; nullopt if they agree.
using Disagreement = std::optional<std::string>;

template <typename Step>
using Steps = std::vector<Step>;

template <typename Step>
struct Experiment {
    std::function<Step(Chance&)> step;
    std::function<Disagreement(const Steps<Step>&)> run; ///< runs from the beginning each time
    int mostSteps = 48;
};

template <typename Step>
struct Finding {
    std::uint64_t seed;
    Steps<Step> steps; ///< minimal: none of them can be removed
    std::string disagreement;
};

/// Runs the steps on a new `Comparison` up to the first disagreement.
template <typename Comparison, typename Step>
Disagreement compared(const Steps<Step>& steps) {
    Comparison comparison;
    for (const auto& step : steps)
        if (auto disagreement = comparison.take(step))
            return disagreement;
    return std::nullopt;
}

/// Shrinks the steps while there is a disagreement.
template <typename Step>
Steps<Step> shortened(const Experiment<Step>& experiment, Steps<Step> steps) {
    for (bool shorter = true; shorter;) {
        shorter = false;
        for (std::size_t i = steps.size(); i-- > 0;) {
            auto without = steps;
            without.erase(without.begin() + static_cast<std::ptrdiff_t>(i));
            if (experiment.run(without)) {
                steps = std::move(without);
                shorter = true;
            }
        }
    }
    return steps;
}

/// Runs the sequences of `count` seeds from `firstSeed` on, up to the first disagreement.
template <typename Step>
std::optional<Finding<Step>> findDisagreement(const Experiment<Step>& experiment,
                                              std::uint64_t firstSeed, std::uint64_t count) {
    for (std::uint64_t seed = firstSeed; seed < firstSeed + count; ++seed) {
        Chance chance(seed);
        Steps<Step> steps;
        for (int more = 1 + chance.below(experiment.mostSteps); more > 0; --more)
            steps.push_back(experiment.step(chance));
        if (!experiment.run(steps))
            continue;
        steps = shortened(experiment, std::move(steps));
        return Finding<Step>{seed, steps, experiment.run(steps).value_or("nothing the next time")};
    }
    return std::nullopt;
}

/// The number in an environment variable, by default `otherwise`.
inline std::uint64_t numberFromEnvironment(const char* name, std::uint64_t otherwise) {
    const char* set = std::getenv(name);
    if (!set)
        return otherwise;
    const std::string_view text(set);
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    EXPECT_TRUE(error == std::errc() && end == text.data() + text.size() && number > 0)
        << name << " takes a whole number greater than 0, not \"" << text << '"';
    return number;
}

/// Fails the test with the shortest sequence on which program and model disagree. Runs the seeds 1
/// to 10,000; the variables BRELLOWIND_SEED and BRELLOWIND_SEQUENCES choose others.
template <typename Step>
void expectAgreement(const Experiment<Step>& experiment) {
    const auto firstSeed = numberFromEnvironment("BRELLOWIND_SEED", 1);
    const auto count = numberFromEnvironment("BRELLOWIND_SEQUENCES", 10'000);
    const auto finding = findDisagreement(experiment, firstSeed, count);
    if (!finding)
        return;
    std::ostringstream steps;
    for (const auto& step : finding->steps)
        steps << "\n  " << step;
    ADD_FAILURE() << "BRELLOWIND_SEED=" << finding->seed << ", in short:" << steps.str()
                  << "\n  => " << finding->disagreement;
}

} // namespace brellowind::test
