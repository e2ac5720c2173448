// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/x11/X11Display.h"

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace brellowind::platform {

/// Events about the children of the root window, on a connection of its own. On Qt's connection,
/// Qt drops a ConfigureNotify event of the root window when one of a child follows, and misses a
/// change of the screens.
class RootChildren {
public:
    using Handler = std::function<void(const xcb_generic_event_t&)>;

    /// Without a connection there are no events.
    RootChildren(xcb_window_t root, Handler handler);

private:
    void read();

    Handler handler_;
    std::unique_ptr<xcb_connection_t, X11Disconnect> connection_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace brellowind::platform
