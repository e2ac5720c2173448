// SPDX-License-Identifier: MIT

#include "platform/macos/appkit/SystemLog.h"

#include "platform/macos/appkit/Text.h"

namespace brellowind::platform {

/// Not as the format: what players and servers say may hold a percent sign.
void SystemLog::write(std::string_view line) {
    NSLog(@"%@", nativeText(line));
}

} // namespace brellowind::platform
