#pragma once

#include "desktops/Compositor.h"
#include "desktops/WaylandConnection.h"

struct zwlr_virtual_pointer_v1;
struct zwp_virtual_keyboard_v1;

namespace brellowind::test {

/// A pointer and a keyboard of a wlroots compositor's, as if they were plugged in while it exists.
class WlrInput {
public:
    explicit WlrInput(const QString& socket);

    /// To a place on the desktop, which covers `bounds`.
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
    std::uint32_t time_ = 0; ///< milliseconds that only order the events
};

} // namespace brellowind::test
