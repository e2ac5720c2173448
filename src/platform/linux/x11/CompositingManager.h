// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <functional>

namespace brellowind::platform {

/// Whether a compositing manager is running, which transparent windows need.
class CompositingManager {
public:
    /// Calls `onChange` after each change of `isRunning`.
    CompositingManager(const X11Connection& x11, std::function<void()> onChange);

    bool isRunning() const { return running_; }

private:
    bool handle(const xcb_generic_event_t& event);

    std::function<void()> onChange_;
    xcb_atom_t selection_; ///< owned by the compositing manager
    int selectionNotify_ = -1;
    bool running_ = false;
    X11EventObserver observer_;
};

} // namespace brellowind::platform
