// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Geometry.h"
#include "foundation/Published.h"
#include "notch/NotchMetrics.h"
#include "platform/Pointer.h"
#include "platform/Screens.h"

#include <memory>

namespace brellowind {

/// The hover area of content of `contentSize` at the middle of a screen's top edge: the content
/// plus a margin of 8 points at the left, at the right and below.
Rect hoverRectangle(const Rect& screenFrame, Size contentSize);

/// Hit test: whether the pointer is over the pill. Observes all movements on the desktop, since the
/// pill's window is click-through most of the time. Must be owned by a std::shared_ptr. Main thread
/// only.
class HoverMonitor : public std::enable_shared_from_this<HoverMonitor> {
public:
    /// Inactive until `start()`. The services must outlive this object.
    HoverMonitor(platform::Pointer& pointer, platform::Screens& screens)
        : pointer_(pointer), screens_(screens) {}

    /// Starts or restarts monitoring, and evaluates at once.
    void start();

    /// Stops monitoring; `isInside` keeps its value.
    void stop();

    /// Assigned only when it changes. Unchanged while there is no screen.
    Published<bool, HoverMonitor> isInside{false};

    /// The laid-out size of the pill, used from the next movement on.
    Size currentSize{280, NotchMetrics::collapsedHeight};

private:
    void evaluate();

    platform::Pointer& pointer_;
    platform::Screens& screens_;
    Subscription monitor_;
};

} // namespace brellowind
