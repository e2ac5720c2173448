// SPDX-License-Identifier: MIT

#include "platform/HeldFile.h"

#include <sys/stat.h>

namespace brellowind::platform {

std::optional<std::string> HeldFile::path() const {
    struct stat held {};
    struct stat present {};
    if (descriptor_ < 0)
        return path_;
    if (::fstat(descriptor_, &held) != 0 || ::stat(path_.c_str(), &present) != 0 ||
        held.st_dev != present.st_dev || held.st_ino != present.st_ino)
        return std::nullopt;
    return path_;
}

} // namespace brellowind::platform
