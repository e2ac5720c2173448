#include "foundation/LargePages.h"

#ifdef __linux__
#include <cstdint>
#include <sys/mman.h>
#endif

namespace brellowind {

void preferLargePages([[maybe_unused]] void* begin, [[maybe_unused]] std::size_t bytes) {
#ifdef __linux__
    constexpr std::size_t worthwhile = 4 << 20;
    constexpr std::uintptr_t large = 2 << 20; // what a large page mostly has
    constexpr std::uintptr_t page = 4096; // any page is a multiple of it, and advice may fail
    if (bytes < worthwhile)
        return;
    const auto first = (reinterpret_cast<std::uintptr_t>(begin) + large + page - 1) / page * page;
    const auto last = (reinterpret_cast<std::uintptr_t>(begin) + bytes) / page * page;
    madvise(reinterpret_cast<void*>(first), last - first, MADV_HUGEPAGE);
#endif
}

} // namespace brellowind
