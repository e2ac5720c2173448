// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Geometry.h"

#include <functional>
#include <memory>
#include <optional>

namespace brellowind::platform {

/// Observes pointer movements until it is destroyed. The handler may destroy it.
class PointerMonitor {
public:
    virtual ~PointerMonitor() = default;
};

/// The mouse pointer.
class Pointer {
public:
    using Handler = std::function<void()>;

    virtual ~Pointer() = default;

    /// In desktop coordinates (origin at the bottom left of the primary screen, y upward). Returns
    /// nullopt while the pointer is over none of this program's windows and the system hides it.
    virtual std::optional<Point> location() = 0;

    /// Whether a button is pressed, as in a drag. False if unknown.
    virtual bool isButtonHeld() { return false; }

    /// Calls `handler` on the main thread after every movement outside this program's windows.
    /// Returns null if the system refuses.
    virtual std::unique_ptr<PointerMonitor> addGlobalMonitor(Handler handler) = 0;

    /// Calls `handler` on the main thread after every movement over this program's windows, before
    /// the window receives it. Returns null if the system refuses.
    virtual std::unique_ptr<PointerMonitor> addLocalMonitor(Handler handler) = 0;
};

} // namespace brellowind::platform
