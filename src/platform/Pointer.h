#pragma once

#include "foundation/Geometry.h"

#include <functional>
#include <memory>
#include <optional>

namespace brellowind::platform {

/// Observes pointer movements until it is destroyed, also by its handler.
class PointerMonitor {
public:
    virtual ~PointerMonitor() = default;
};

/// The mouse pointer.
class Pointer {
public:
    using Handler = std::function<void()>;

    virtual ~Pointer() = default;

    /// In desktop coordinates (origin at the bottom left of the primary screen, y upward). Absent
    /// while the pointer is where the system does not let this program see it, so over none of its
    /// windows.
    virtual std::optional<Point> location() = 0;

    /// Whether a button is held down, as in a drag. False where the system does not tell.
    virtual bool isButtonHeld() { return false; }

    /// Calls `handler` after every movement over anything but this program's windows, on the main
    /// thread. Absent when the system refuses.
    virtual std::unique_ptr<PointerMonitor> addGlobalMonitor(Handler handler) = 0;

    /// Calls `handler` after every movement over this program's windows, on the main thread, before
    /// the movement is delivered to them as usual. Absent when the system refuses.
    virtual std::unique_ptr<PointerMonitor> addLocalMonitor(Handler handler) = 0;
};

} // namespace brellowind::platform
