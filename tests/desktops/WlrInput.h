// SPDX-License-Identifier: MIT

#pragma once

#include "desktops/Compositor.h"
#include "desktops/WaylandConnection.h"

struct zwlr_virtual_pointer_v1;
struct zwp_virtual_keyboard_v1;

namespace brellowind::test {

/// A virtual pointer and keyboard of a wlroots compositor, during this object's lifetime.
class WlrInput {
public:
    explicit WlrInput(const QString& socket);

    /// Moves to a position on the desktop, which has the extent `bounds`.
    void movePointerTo(QPointF place, QRect bounds);
    void movePointerBy(QPointF distance);
    void button(int code, Stroke stroke);
    void key(int code, Stroke stroke);

private:
    std::uint32_t nextTime() { return ++time_; }
    void finishPointer();

    WaylandConnection connection_;
    zwlr_virtual_pointer_v1* pointer_;
    zwp_virtual_keyboard_v1* keyboard_;
    std::uint32_t time_ = 0; ///< milliseconds; arbitrary but increasing
};

} // namespace brellowind::test
