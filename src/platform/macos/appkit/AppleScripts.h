// SPDX-License-Identifier: MIT

#pragma once

#include "platform/macos/ScriptHost.h"

namespace brellowind::platform {

/// AppleScript. The system asks the user once whether this program may control an application.
class AppleScripts final : public ScriptHost {
public:
    bool isRunning(std::string_view bundleIdentifier) override;
    Outcome run(std::string_view source) override;
};

} // namespace brellowind::platform
