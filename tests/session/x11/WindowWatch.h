#pragma once

#include "session/x11/XClient.h"

namespace brellowind::test {

/// Counts what happens to a window of another program from now on.
class WindowWatch {
public:
    WindowWatch(const QString& display, xcb_window_t window);

    /// How often it has been mapped, unmapped, moved, resized or restacked.
    int structureEvents();

    /// How often its shape has been set.
    int shapeEvents();

private:
    void count();

    XClient client_;
    int shapeNotify_; ///< the event's number on this server
    int structureEvents_ = 0;
    int shapeEvents_ = 0;
};

} // namespace brellowind::test
