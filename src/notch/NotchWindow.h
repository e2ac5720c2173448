// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Geometry.h"
#include "platform/Overlay.h"
#include "platform/Screens.h"

namespace brellowind {

/// The frame of the notch window on a screen: at the middle of the top edge, as wide as the screen
/// but at most 640 points.
Rect notchWindowFrame(const Rect& screenFrame);

/// The window over the notch. Main thread only.
class NotchWindow {
public:
    /// Makes `window` click-through; does not place or show it. Both references must outlive this
    /// object.
    NotchWindow(platform::Overlay& window, platform::Screens& screens);
    NotchWindow(const NotchWindow&) = delete;
    NotchWindow& operator=(const NotchWindow&) = delete;

    /// Moves the window over the notch and raises it without activating the program.
    void show();

    /// Moves the window to the `pillScreen`. Does nothing without one.
    void repositionToNotch();

private:
    platform::Overlay& window_;
    platform::Screens& screens_;
};

} // namespace brellowind
