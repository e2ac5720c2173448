// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Clock.h"

namespace brellowind::platform {

class SystemClock final : public Clock {
public:
    WallTime now() const override { return std::chrono::system_clock::now(); }
};

} // namespace brellowind::platform
