// SPDX-License-Identifier: MIT

#include "desktops/WlrInput.h"

#include <QFile>
#include <QTemporaryFile>
#include <cmath>
#include <virtual-keyboard-unstable-v1-client-protocol.h>
#include <wlr-virtual-pointer-unstable-v1-client-protocol.h>

namespace brellowind::test {
namespace {

constexpr char keymap[] = "xkb_keymap {"
                          " xkb_keycodes { include \"evdev+aliases(qwerty)\" };"
                          " xkb_types { include \"complete\" };"
                          " xkb_compat { include \"complete\" };"
                          " xkb_symbols { include \"pc+us+inet(evdev)\" };"
                          " };";

constexpr double fineness = 256; // steps to a point

std::uint32_t steps(double points) {
    return static_cast<std::uint32_t>(std::lround(points * fineness));
}

void sendKeymap(zwp_virtual_keyboard_v1* keyboard) {
    QTemporaryFile file;
    if (!file.open() || file.write(keymap, sizeof keymap) != sizeof keymap || !file.flush())
        throw DesktopFailure(QStringLiteral("the keymap cannot be written"));
    zwp_virtual_keyboard_v1_keymap(keyboard, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file.handle(),
                                   sizeof keymap);
}

} // namespace

WlrInput::WlrInput(const QString& socket) : connection_(QFile::encodeName(socket).constData()) {
    auto* seat = connection_.bind<wl_seat>(wl_seat_interface, 1);
    auto* pointers = connection_.bind<zwlr_virtual_pointer_manager_v1>(
        zwlr_virtual_pointer_manager_v1_interface, 1);
    auto* keyboards = connection_.bind<zwp_virtual_keyboard_manager_v1>(
        zwp_virtual_keyboard_manager_v1_interface, 1);
    pointer_ = zwlr_virtual_pointer_manager_v1_create_virtual_pointer(pointers, seat);
    keyboard_ = zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(keyboards, seat);
    sendKeymap(keyboard_);
    connection_.finish();
}

void WlrInput::movePointerTo(QPointF place, QRect bounds) {
    const QPointF inside = place - bounds.topLeft();
    zwlr_virtual_pointer_v1_motion_absolute(pointer_, nextTime(), steps(inside.x()),
                                            steps(inside.y()), steps(bounds.width()),
                                            steps(bounds.height()));
    finishPointer();
}

void WlrInput::movePointerBy(QPointF distance) {
    zwlr_virtual_pointer_v1_motion(pointer_, nextTime(), wl_fixed_from_double(distance.x()),
                                   wl_fixed_from_double(distance.y()));
    finishPointer();
}

void WlrInput::button(int code, Stroke stroke) {
    zwlr_virtual_pointer_v1_button(pointer_, nextTime(), static_cast<std::uint32_t>(code),
                                   stroke == Stroke::down ? WL_POINTER_BUTTON_STATE_PRESSED
                                                          : WL_POINTER_BUTTON_STATE_RELEASED);
    finishPointer();
}

void WlrInput::key(int code, Stroke stroke) {
    zwp_virtual_keyboard_v1_key(keyboard_, nextTime(), static_cast<std::uint32_t>(code),
                                stroke == Stroke::down ? WL_KEYBOARD_KEY_STATE_PRESSED
                                                       : WL_KEYBOARD_KEY_STATE_RELEASED);
    connection_.finish();
}

void WlrInput::finishPointer() {
    zwlr_virtual_pointer_v1_frame(pointer_);
    connection_.finish();
}

} // namespace brellowind::test
