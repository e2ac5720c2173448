#pragma once

#include "foundation/Observers.h"
#include "platform/Pointer.h"

#include <memory>
#include <optional>

namespace brellowind::platform {

/// The pointer as a compositor tells of it: only while it is over a window of this program. The
/// overlay's window reports it here.
class WaylandPointer final : public Pointer {
public:
    std::optional<Point> location() override { return location_; }
    std::unique_ptr<PointerMonitor> addGlobalMonitor(Handler handler) override;
    std::unique_ptr<PointerMonitor> addLocalMonitor(Handler handler) override;

    /// The pointer is at `location` on the desktop now; absent: it has left.
    void move(std::optional<Point> location);

private:
    std::optional<Point> location_;
    std::shared_ptr<Observers> observers_ = std::make_shared<Observers>();
};

} // namespace brellowind::platform
