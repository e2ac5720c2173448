// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <functional>

namespace brellowind::platform {

/// Calls a handler whenever the pointer is used again after a rest of a tenth of a second. This
/// also covers a pointer that another program puts elsewhere, and the first touch of a finger, for
/// which the server sends no raw motion. Without effect on a server that does not tell how long the
/// pointer has rested.
class X11PointerUse {
public:
    explicit X11PointerUse(std::function<void()> onUse);
    ~X11PointerUse();

    X11PointerUse(const X11PointerUse&) = delete;
    X11PointerUse& operator=(const X11PointerUse&) = delete;

private:
    bool handle(const xcb_generic_event_t& event);

    std::function<void()> onUse_;
    X11Connection x11_;
    int notify_ = -1; ///< the number of the event
    std::uint32_t alarm_ = XCB_NONE;
    X11EventObserver observer_;
};

} // namespace brellowind::platform
