#include "foundation/SharedText.h"

#include "foundation/LargePages.h"

#include <cstring>
#include <new>

namespace brellowind {

SharedBytes::SharedBytes(std::string_view bytes)
    : block_(new (::operator new(sizeof(Block) + bytes.size())) Block{1}) {
    preferLargePages(block_, sizeof(Block) + bytes.size());
    if (!bytes.empty())
        std::memcpy(block_ + 1, bytes.data(), bytes.size());
}

void SharedBytes::release() {
    ::operator delete(block_);
}

} // namespace brellowind
