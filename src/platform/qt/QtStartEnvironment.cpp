#include "platform/qt/QtStartEnvironment.h"

#include <QByteArray>
#include <array>

namespace brellowind::platform::QtStartEnvironment {
namespace {

struct Choice {
    const char* variable;
    const char* value;
    bool made = false;
};

std::array choices{
    // Frames are sent to the X server at once: of memory shared with the server every frame would
    // have to
    // ask whether it is free, which wakes both and costs more than sending the few pixels.
    Choice{"QT_XCB_NO_MITSHM", "1"},
    // Qt's own event loop costs less each time it wakes than the one that it borrows from GLib.
    Choice{"QT_NO_GLIB", "1"},
};

} // namespace

void choose() {
    for (auto& choice : choices) {
        choice.made = !qEnvironmentVariableIsSet(choice.variable);
        if (choice.made)
            qputenv(choice.variable, QByteArray(choice.value));
    }
}

void takeBack() {
    for (auto& choice : choices) {
        if (choice.made)
            qunsetenv(choice.variable);
        choice.made = false;
    }
}

} // namespace brellowind::platform::QtStartEnvironment
