#include "platform/qt/QtStartEnvironment.h"

namespace brellowind::platform::QtStartEnvironment {

QProcessEnvironment choose() {
    auto before = QProcessEnvironment::systemEnvironment();
    constexpr const char* switches[] = {
        // Frames are sent to the X server instead of being put into memory that is shared with it.
        // Of shared memory Qt asks before every frame whether it is free: 55 wake-ups a second
        // while playing instead of 26.
        "QT_XCB_NO_MITSHM",
        // A window with the hint gets no role on Wayland: the pill and its menu get another one.
        // Heeded while the program runs.
        "QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT",
        // Windows keep the position that they are told, so that assistive programs find them.
        "QT_WAYLAND_DISABLE_FIXED_POSITIONS",
        // The compositor decorates the settings; Qt's own decorations load a graphics driver.
        "QT_WAYLAND_DISABLE_WINDOWDECORATION",
    };
    for (const char* name : switches)
        if (!qEnvironmentVariableIsSet(name))
            qputenv(name, "1");
    return before;
}

} // namespace brellowind::platform::QtStartEnvironment
