#pragma once

#include "foundation/Observers.h"
#include "platform/Pointer.h"

#include <QSinglePointEvent>
#include <memory>
#include <optional>

namespace brellowind::platform {

/// The pointer where the system tells of it only while it is over a window of this program. The
/// overlay's window reports it here.
class WindowPointer final : public Pointer {
public:
    std::optional<Point> location() override { return location_; }
    std::unique_ptr<PointerMonitor> addGlobalMonitor(Handler handler) override;
    std::unique_ptr<PointerMonitor> addLocalMonitor(Handler handler) override;

    /// The pointer is where `event` is in the window that has `frame` on the desktop; at its top
    /// edge it is within the frame. Nothing comes of a finger.
    void moveWithin(const Rect& frame, const QSinglePointEvent& event);

    /// The pointer has left.
    void leave();

private:
    void move(std::optional<Point> location);

    std::optional<Point> location_;
    std::shared_ptr<Observers> observers_ = std::make_shared<Observers>();
};

} // namespace brellowind::platform
