// SPDX-License-Identifier: MIT

#include "platform/HeldFile.h"

namespace brellowind::platform {

std::optional<std::string> HeldFile::path() const {
    if (descriptor_ < 0)
        return path_;
    return "/proc/self/fd/" + std::to_string(descriptor_);
}

} // namespace brellowind::platform
