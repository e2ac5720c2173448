// SPDX-License-Identifier: MIT

#pragma once

#include "session/x11/XClient.h"

#include <sys/types.h>

namespace brellowind::test {

/// The resource usage of a process.
struct Consumption {
    double pssMB = 0;     ///< proportional set size
    double rssMB = 0;     ///< resident set size
    double privateMB = 0; ///< private dirty memory
    double files = 0;     ///< open file descriptors
    double threads = 0;
    double xResources = 0; ///< windows, pixmaps, cursors and the like on the X server
    double pixmapsMB = 0;  ///< on the X server
};

/// Measures the process `pid`, which owns `window`. Fails the test if there is no such process.
Consumption consumption(pid_t pid, const XClient& x, xcb_window_t window);

} // namespace brellowind::test
