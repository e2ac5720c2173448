// SPDX-License-Identifier: MIT

#include "soak/Heap.h"

#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

brellowind::test::Heap held;

void* take(void* memory) {
    if (!memory)
        std::abort();
    ++held.blocks;
    held.bytes += ::malloc_usable_size(memory);
    return memory;
}

void giveBack(void* memory) {
    if (!memory)
        return;
    --held.blocks;
    held.bytes -= ::malloc_usable_size(memory);
    std::free(memory);
}

} // namespace

brellowind::test::Heap brellowind::test::heap() {
    return held;
}

// All other forms call these.

void* operator new(std::size_t size) {
    return take(std::malloc(size > 0 ? size : 1));
}

void* operator new(std::size_t size, std::align_val_t alignment) {
    const auto step = static_cast<std::size_t>(alignment);
    return take(std::aligned_alloc(step, (size + step - 1) / step * step));
}

void operator delete(void* memory) noexcept {
    giveBack(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    giveBack(memory);
}

void operator delete(void* memory, std::align_val_t) noexcept {
    giveBack(memory);
}

void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
    giveBack(memory);
}
