#pragma once

#include "foundation/Geometry.h"

namespace brellowind::platform {

/// A borderless, transparent window without a shadow, above every other window and the menu bar, on
/// every desktop and beside full-screen applications. It never takes the keyboard focus, the user
/// cannot move it, and its first click acts at once, whichever application is active.
class OverlayWindow {
public:
    virtual ~OverlayWindow() = default;

    /// Places and redraws the window, in desktop coordinates (origin at the bottom left of the
    /// primary screen, y upward). No menu bar or panel pushes it elsewhere.
    virtual void setFrame(const Rect& frame) = 0;

    /// Shows the window in front of all others without activating the program.
    virtual void orderFrontRegardless() = 0;

    /// Whether clicks and movements fall through to what lies beneath. Repeating the present value
    /// costs nothing.
    virtual void setIgnoresMouseEvents(bool ignores) = 0;
};

} // namespace brellowind::platform
