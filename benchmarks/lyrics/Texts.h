#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Texts to parse.
namespace brellowind::benchmarks::texts {

/// A song of 60 lines and about 2 KB.
std::string typical();

/// Songs like it, one after the other, with times that go on; about `bytes` long.
std::string large(std::size_t bytes);

/// A kind of text that can be made in any size, to see how the time grows.
struct Family {
    std::string_view name;
    std::string (*make)(std::size_t bytes);
};

const std::vector<Family>& families();

} // namespace brellowind::benchmarks::texts
