#include "platform/qt/QtStartEnvironment.h"

namespace brellowind::platform::QtStartEnvironment {

QProcessEnvironment choose() {
    auto before = QProcessEnvironment::systemEnvironment();
    // Frames are sent to the X server instead of being put into memory that is shared with it. Of
    // shared memory Qt asks before every frame whether it is free: 55 wake-ups a second while
    // playing instead of 26.
    constexpr const char* withoutSharedMemory = "QT_XCB_NO_MITSHM";
    if (!qEnvironmentVariableIsSet(withoutSharedMemory))
        qputenv(withoutSharedMemory, "1");
    return before;
}

} // namespace brellowind::platform::QtStartEnvironment
