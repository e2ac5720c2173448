// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace brellowind::platform {

/// The system log.
class Log {
public:
    virtual ~Log() = default;

    /// Writes one line. `line` does not contain a line end.
    virtual void write(std::string_view line) = 0;
};

} // namespace brellowind::platform
