#pragma once

#include "foundation/Geometry.h"
#include "platform/Overlay.h"
#include "platform/Screens.h"

namespace brellowind {

/// The frame of the notch window on a screen: it hangs from the middle of the top edge, as wide as
/// the screen but at most 640 points.
Rect notchWindowFrame(const Rect& screenFrame);

/// The one window that hangs over the notch. Main thread only.
class NotchWindow {
public:
    /// Makes `window` click-through; it is neither placed nor shown yet. Both must outlive this.
    NotchWindow(platform::Overlay& window, platform::Screens& screens);
    NotchWindow(const NotchWindow&) = delete;
    NotchWindow& operator=(const NotchWindow&) = delete;

    /// Places the window over the notch and brings it to the front without activating the program.
    void show();

    /// Places the window on the `pillScreen`. Without one it stays where it is.
    void repositionToNotch();

private:
    platform::Overlay& window_;
    platform::Screens& screens_;
};

} // namespace brellowind
