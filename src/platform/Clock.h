// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

namespace brellowind::platform {

using WallTime = std::chrono::system_clock::time_point;

/// The wall clock.
class Clock {
public:
    virtual ~Clock() = default;
    virtual WallTime now() const = 0;
};

} // namespace brellowind::platform
