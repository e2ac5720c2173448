// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>
#include <xcb/xcb.h>

namespace brellowind::platform {

/// Normalises `spelling`, a value of DISPLAY (null: the current one): host, empty for this host,
/// colon and display number, without the screen. Empty if invalid.
std::string x11DisplayName(const char* spelling = nullptr);

struct X11Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

/// Connects to the X server of DISPLAY. Blocks. Null if there is none or it refuses the connection.
std::unique_ptr<xcb_connection_t, X11Disconnect> openX11Display();

} // namespace brellowind::platform
