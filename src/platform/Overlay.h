#pragma once

#include "foundation/Geometry.h"
#include "foundation/Path.h"

#include <functional>
#include <vector>

namespace brellowind::platform {

/// A borderless, transparent window without a shadow, above every other window and the menu bar, on
/// every desktop and beside full-screen applications. It never takes the keyboard focus, the user
/// cannot move it, and its first click acts at once, whichever application is active.
class Overlay {
public:
    virtual ~Overlay() = default;

    /// Places and redraws the window, in desktop coordinates (origin at the bottom left of the
    /// primary screen, y upward). No menu bar or panel pushes it elsewhere.
    virtual void setFrame(const Rect& frame) = 0;

    /// Shows the window in front of all others without activating the program.
    virtual void orderFrontRegardless() = 0;

    /// The outline of what the window shows, and the rectangles that take clicks and movements as
    /// well while it does not ignore them, in points from its top left corner, y downward. Both may
    /// differ in every frame; at first they are empty. Elsewhere clicks and movements fall through
    /// to what lies beneath, and where the window cannot be transparent, outside the outline too.
    virtual void setOutline(const Path& outline, const std::vector<Rect>& reach) = 0;

    /// Shows a frame after its outline is set: calls `flush`, which hands the frame to the window
    /// system.
    virtual void present(const std::function<void()>& flush) { flush(); }

    /// Whether clicks and movements fall through everywhere, which they do at first. Repeating the
    /// present value costs nothing. Where the system tells this program of the pointer only while
    /// it is over a window that takes it, those within the outline never fall through.
    virtual void setIgnoresMouseEvents(bool ignores) = 0;
};

} // namespace brellowind::platform
