#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <QRegion>
#include <optional>

namespace brellowind::platform {

/// The shape of one window. Setting what is set already sends nothing.
class X11Shape {
public:
    X11Shape(const X11Connection& x11, xcb_window_t window);

    /// Where the window takes the pointer; elsewhere it falls through to what lies beneath.
    void setInput(const QRegion& region);

    /// Where there is a window at all; absent: everywhere. Where a bounded window grows it is black
    /// until it is drawn.
    void setBounding(const std::optional<QRegion>& region);

private:
    void setBackground(bool black);

    X11Connection x11_;
    xcb_window_t window_;
    std::optional<QRegion> input_; ///< absent: as the server made it, the whole window
    std::optional<QRegion> bounding_;
};

} // namespace brellowind::platform
