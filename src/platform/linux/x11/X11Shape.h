// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <QRegion>
#include <optional>

namespace brellowind::platform {

/// The SHAPE regions of a window. Setting the current value sends nothing.
class X11Shape {
public:
    X11Shape(const X11Connection& x11, xcb_window_t window);

    /// The region with pointer input; elsewhere it goes to the windows below.
    void setInput(const QRegion& region);

    /// The extent of the window; nullopt: not bounded. New parts are black until they are drawn.
    void setBounding(const std::optional<QRegion>& region);

private:
    void setBackground(bool black);

    X11Connection x11_;
    xcb_window_t window_;
    std::optional<QRegion> input_; ///< nullopt: the default, the whole window
    std::optional<QRegion> bounding_;
};

} // namespace brellowind::platform
