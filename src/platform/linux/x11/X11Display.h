#pragma once

#include <memory>
#include <string>
#include <xcb/xcb.h>

namespace brellowind::platform {

/// The display that `spelling`, as in the variable DISPLAY, leads to: its host, which is empty for
/// this one, a colon and its number. The screen is left out. Empty if it leads nowhere; null stands
/// for the variable's value.
std::string x11DisplayName(const char* spelling = nullptr);

struct X11Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

/// A connection to the X server that DISPLAY leads to; null when there is none or it refuses this
/// program. Waits for the server's answer.
std::unique_ptr<xcb_connection_t, X11Disconnect> openX11Display();

} // namespace brellowind::platform
