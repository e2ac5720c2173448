#include "foundation/SharedText.h"

#include <algorithm>

namespace brellowind {

SharedText::SharedText(std::string_view text)
    : buffer_(copyBytes(text)), slice_(buffer_.get(), text.size()) {}

SharedText::Buffer SharedText::copyBytes(std::string_view text) {
    auto buffer = std::make_shared_for_overwrite<char[]>(text.size());
    std::ranges::copy(text, buffer.get());
    return buffer;
}

} // namespace brellowind
