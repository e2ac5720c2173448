#pragma once

#include <cstddef>

namespace brellowind::benchmarks {

/// How often this program has taken memory from the heap with `operator new`.
std::size_t allocations();

} // namespace brellowind::benchmarks
