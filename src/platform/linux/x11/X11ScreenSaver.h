// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <functional>

namespace brellowind::platform {

/// The X server's built-in screen saver.
class X11ScreenSaver {
public:
    /// Calls `onChange` after each change of `isActive`.
    X11ScreenSaver(const X11Connection& x11, std::function<void()> onChange);

    bool isActive() const { return active_; }

private:
    bool handle(const xcb_generic_event_t& event);

    std::function<void()> onChange_;
    int notify_ = -1;
    bool active_ = false;
    X11EventObserver observer_;
};

} // namespace brellowind::platform
