#pragma once

#include "session/x11/XClient.h"

#include <sys/types.h>

namespace brellowind::test {

/// What a process holds at one moment.
struct Consumption {
    double pssMB = 0;     ///< memory, of what it shares with others only its part
    double rssMB = 0;     ///< memory, whoever shares it
    double privateMB = 0; ///< memory that it has written to itself
    double files = 0;     ///< open file descriptors
    double threads = 0;
    double xResources = 0; ///< windows, pixmaps, cursors and the like on the X server
    double pixmapsMB = 0;  ///< on the X server
};

/// Of the process `pid`, which owns `window`. Fails the running test when there is no such process.
Consumption consumption(pid_t pid, const XClient& x, xcb_window_t window);

} // namespace brellowind::test
