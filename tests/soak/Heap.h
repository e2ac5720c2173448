#pragma once

#include <cstddef>

namespace brellowind::test {

/// What the operators new of this process have given out and not got back.
struct Heap {
    std::size_t blocks = 0;
    std::size_t bytes = 0;
};

/// Counted from the beginning of the process, by operators of its own.
Heap heap();

} // namespace brellowind::test
