// SPDX-License-Identifier: MIT

#pragma once

#include "platform/macos/NativeOverlay.h"

namespace brellowind::platform {

/// Makes the window of the `NSView` at the address `view` an overlay.
std::unique_ptr<NativeOverlay> makeAppKitOverlay(std::uintptr_t view);

} // namespace brellowind::platform
