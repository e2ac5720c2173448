// SPDX-License-Identifier: MIT

#pragma once

namespace brellowind::platform {

/// Raises and activates every visible window of the program that accepts the focus.
void raiseWindows();

} // namespace brellowind::platform
