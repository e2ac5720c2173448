// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Log.h"

namespace brellowind::platform {

/// The log of macOS.
class SystemLog final : public Log {
public:
    void write(std::string_view line) override;
};

} // namespace brellowind::platform
