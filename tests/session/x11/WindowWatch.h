// SPDX-License-Identifier: MIT

#pragma once

#include "session/x11/XClient.h"

namespace brellowind::test {

/// Counts events of a window of another client.
class WindowWatch {
public:
    WindowWatch(const QString& display, xcb_window_t window);

    /// Number of maps, unmaps, moves, resizes and restackings.
    int structureEvents();

    /// Number of changes of its shape.
    int shapeEvents();

private:
    void count();

    XClient client_;
    int shapeNotify_; ///< the event type on this server
    int structureEvents_ = 0;
    int shapeEvents_ = 0;
};

} // namespace brellowind::test
