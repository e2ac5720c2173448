#include "foundation/SharedText.h"

#include <algorithm>
#include <new>

namespace brellowind {

SharedBytes::SharedBytes(std::string_view bytes)
    : block_(new (::operator new(sizeof(Block) + bytes.size())) Block{1}) {
    std::ranges::copy(bytes, reinterpret_cast<char*>(block_ + 1));
}

void SharedBytes::release() {
    ::operator delete(block_);
}

} // namespace brellowind
