#pragma once

#include "foundation/Geometry.h"
#include "foundation/Published.h"
#include "notch/NotchMetrics.h"
#include "platform/Pointer.h"
#include "platform/Screens.h"

#include <memory>

namespace brellowind {

/// Where the pointer counts as over content of `contentSize` that hangs from the middle of the top
/// edge of a screen: the content and 8 points more at the left, at the right and below.
Rect hoverRectangle(const Rect& screenFrame, Size contentSize);

/// Whether the pointer is over the pill. It follows every movement on the desktop, since the window
/// under the pill lets most of them fall through. Held by a std::shared_ptr. Main thread only.
class HoverMonitor : public std::enable_shared_from_this<HoverMonitor> {
public:
    /// Stopped: the pointer is not asked before `start()`. The services must outlive it.
    HoverMonitor(platform::Pointer& pointer, platform::Screens& screens)
        : pointer_(pointer), screens_(screens) {}

    /// Begins watching, and looks at once. Watching already, it begins anew.
    void start();

    /// Ends watching; `isInside` keeps its value.
    void stop();

    /// Assigned only when it changes. Without a screen it keeps its value.
    Published<bool, HoverMonitor> isInside{false};

    /// The size of the pill as it is laid out. The next movement uses it.
    Size currentSize{280, NotchMetrics::collapsedHeight};

private:
    platform::Pointer::Handler evaluation();
    void evaluate();

    platform::Pointer& pointer_;
    platform::Screens& screens_;
    std::unique_ptr<platform::PointerMonitor> globalMonitor_; ///< absent when refused
    std::unique_ptr<platform::PointerMonitor> localMonitor_;  ///< absent when refused
};

} // namespace brellowind
