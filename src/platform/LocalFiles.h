// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace brellowind::platform {

class LocalFiles {
public:
    virtual ~LocalFiles() = default;

    /// The contents of the regular file that `url` (of the scheme "file") names. Returns nullopt if
    /// it does not exist, is not a regular file, cannot be read, or is longer than `maximumBytes`.
    virtual std::optional<std::string> read(std::string_view url, std::size_t maximumBytes) = 0;
};

} // namespace brellowind::platform
