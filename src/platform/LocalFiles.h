#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace brellowind::platform {

/// The files of this machine.
class LocalFiles {
public:
    virtual ~LocalFiles() = default;

    /// The contents of the ordinary file that `url` (of the scheme "file") names. Absent when there
    /// is none, when it is no ordinary file, cannot be read, or is longer than `maximumBytes`.
    virtual std::optional<std::string> read(std::string_view url, std::size_t maximumBytes) = 0;
};

} // namespace brellowind::platform
