// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Texts to parse.
namespace brellowind::benchmarks::texts {

/// A song of 60 lines and about 2 KB.
std::string typical();

/// A concatenation of such songs with increasing times, about `bytes` long.
std::string large(std::size_t bytes);

/// A kind of text of arbitrary size, for measuring the growth of the time.
struct Family {
    std::string_view name;
    std::string (*make)(std::size_t bytes);
};

const std::vector<Family>& families();

} // namespace brellowind::benchmarks::texts
