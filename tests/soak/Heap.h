// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

namespace brellowind::test {

/// The allocations of the global operators new that are not freed.
struct Heap {
    std::size_t blocks = 0;
    std::size_t bytes = 0;
};

/// Counted since the start of the process, by replaced operators.
Heap heap();

} // namespace brellowind::test
