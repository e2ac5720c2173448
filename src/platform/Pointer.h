// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Geometry.h"
#include "foundation/Observers.h"

#include <optional>

namespace brellowind::platform {

/// The mouse pointer.
class Pointer {
public:
    using Handler = Observers::Callback;

    virtual ~Pointer() = default;

    /// In desktop coordinates (origin at the bottom left of the primary screen, y upward). Returns
    /// nullopt while the pointer is over none of this program's windows and the system hides it.
    virtual std::optional<Point> location() = 0;

    /// Whether a button is pressed, as in a drag. False if unknown.
    virtual bool isButtonHeld() { return false; }

    /// Calls `handler` on the main thread after every movement that the system reports; over this
    /// program's windows before the window receives it. The handler may end the subscription. Never
    /// calls it if the system refuses.
    virtual Subscription addMonitor(Handler handler) = 0;
};

} // namespace brellowind::platform
