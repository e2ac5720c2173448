// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Pointer.h"

namespace brellowind::platform {

/// The mouse pointer of macOS. Watching its movements needs no permission.
class AppKitPointer final : public Pointer {
public:
    /// Always there.
    std::optional<Point> location() override;
    bool isButtonHeld() override;
    Subscription addMonitor(Handler handler) override;
};

} // namespace brellowind::platform
