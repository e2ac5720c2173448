// SPDX-License-Identifier: MIT

#include "platform/HeldFile.h"

#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace brellowind::platform {

HeldFile::HeldFile(std::string path)
    : path_(std::move(path)), descriptor_(::open(path_.c_str(), O_RDONLY | O_CLOEXEC)) {}

HeldFile::~HeldFile() {
    if (descriptor_ >= 0)
        ::close(descriptor_);
}

} // namespace brellowind::platform
