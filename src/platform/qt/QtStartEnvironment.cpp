// SPDX-License-Identifier: MIT

#include "platform/qt/QtStartEnvironment.h"

#include <utility>

namespace brellowind::platform::QtStartEnvironment {

QProcessEnvironment choose() {
    auto before = QProcessEnvironment::systemEnvironment();
    constexpr std::pair<const char*, const char*> variables[] = {
        // Send frames over the connection, not in shared memory: for the latter Qt waits for the
        // server before every frame, with 55 instead of 26 wake-ups per second while playing.
        {"QT_XCB_NO_MITSHM", "1"},
        // A window with this hint gets no role from Qt on Wayland; the pill and its menu set roles
        // of their own. Read at any time, not only at the start.
        {"QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1"},
        // Windows keep their set positions, which assistive programs need.
        {"QT_WAYLAND_DISABLE_FIXED_POSITIONS", "1"},
        // No client-side decorations, which load a graphics driver.
        {"QT_WAYLAND_DISABLE_WINDOWDECORATION", "1"},
        // QML that was compiled for another version of Qt is not cached in the home folder. Read
        // from Qt 6.5 on.
        {"QML_DISK_CACHE", "aot"},
    };
    for (const auto& [name, value] : variables)
        if (!qEnvironmentVariableIsSet(name))
            qputenv(name, value);
    return before;
}

} // namespace brellowind::platform::QtStartEnvironment
