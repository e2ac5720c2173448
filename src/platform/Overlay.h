// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Geometry.h"
#include "foundation/Path.h"

#include <functional>
#include <vector>

namespace brellowind::platform {

/// A borderless, transparent window without a shadow, above every other window and the menu bar, on
/// every desktop and over full-screen applications. It never takes the keyboard focus, cannot be
/// moved by the user, and accepts the first click, whichever application is active.
class Overlay {
public:
    virtual ~Overlay() = default;

    /// Moves, resizes and redraws the window. `frame` is in desktop coordinates (origin at the
    /// bottom left of the primary screen, y upward) and may cover menu bars and panels.
    virtual void setFrame(const Rect& frame) = 0;

    /// Raises the window above all others without activating the program.
    virtual void orderFrontRegardless() = 0;

    /// Sets the outline of the window's content, and further rectangles that receive input while
    /// the window does not ignore it, in points from its top left corner, y downward. Input
    /// elsewhere goes to the windows below. Without transparency the window is clipped to the
    /// outline. May be called for every frame; initially both are empty.
    virtual void setOutline(const Path& outline, const std::vector<Rect>& inputRects) = 0;

    /// Presents a frame, after its outline is set. `flush` submits it to the window system.
    virtual void present(const std::function<void()>& flush) { flush(); }

    /// Whether all clicks and movements go to the windows below; initially true. Setting the
    /// current value again is cheap. Where the system reports the pointer only over windows with
    /// input, the outline always receives input.
    virtual void setIgnoresMouseEvents(bool ignores) = 0;
};

} // namespace brellowind::platform
