// SPDX-License-Identifier: MIT

#include "platform/qt/QtStartEnvironment.h"

namespace brellowind::platform::QtStartEnvironment {

QProcessEnvironment choose() {
    auto before = QProcessEnvironment::systemEnvironment();
    constexpr const char* switches[] = {
        // Send frames over the connection, not in shared memory: for the latter Qt waits for the
        // server before every frame, with 55 instead of 26 wake-ups per second while playing.
        "QT_XCB_NO_MITSHM",
        // A window with this hint gets no role from Qt on Wayland; the pill and its menu set roles
        // of their own. Read at any time, not only at the start.
        "QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT",
        // Windows keep their set positions, which assistive programs need.
        "QT_WAYLAND_DISABLE_FIXED_POSITIONS",
        // No client-side decorations, which load a graphics driver.
        "QT_WAYLAND_DISABLE_WINDOWDECORATION",
    };
    for (const char* name : switches)
        if (!qEnvironmentVariableIsSet(name))
            qputenv(name, "1");
    return before;
}

} // namespace brellowind::platform::QtStartEnvironment
