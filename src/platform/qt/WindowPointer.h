// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Observers.h"
#include "platform/Pointer.h"

#include <QSinglePointEvent>
#include <memory>
#include <optional>
#include <utility>

namespace brellowind::platform {

/// The pointer on systems that report it only over windows of this program. Fed with the events of
/// the overlay's window.
class WindowPointer final : public Pointer {
public:
    std::optional<Point> location() override { return location_; }
    Subscription addMonitor(Handler handler) override {
        return observers_->add(std::move(handler));
    }

    /// The pointer has moved to the position of `event` in a window with `frame` on the desktop.
    /// The position is kept below the frame's top edge. Ignores touch events.
    void moveWithin(const Rect& frame, const QSinglePointEvent& event);

    /// The pointer has left.
    void leave();

private:
    void move(std::optional<Point> location);

    std::optional<Point> location_;
    std::shared_ptr<Observers> observers_ = std::make_shared<Observers>();
};

} // namespace brellowind::platform
