// SPDX-License-Identifier: MIT

#include "session/x11/Person.h"

#include <xcb/xtest.h>

namespace brellowind::test {

void Person::pointAt(QPoint pixel) {
    fake(XCB_MOTION_NOTIFY, 0, pixel);
}

void Person::hold(int button) {
    fake(XCB_BUTTON_PRESS, button, {});
}

void Person::release(int button) {
    fake(XCB_BUTTON_RELEASE, button, {});
}

void Person::press(int button) {
    hold(button);
    release(button);
}

void Person::pressAt(QPoint pixel, int button) {
    pointAt(pixel);
    press(button);
}

void Person::pressEscape() {
    constexpr int escape = 9; // keycode with evdev
    fake(XCB_KEY_PRESS, escape, {});
    fake(XCB_KEY_RELEASE, escape, {});
}

void Person::fake(int event, int detail, QPoint place) {
    xcb_test_fake_input(x_.get(), static_cast<std::uint8_t>(event),
                        static_cast<std::uint8_t>(detail), XCB_CURRENT_TIME, x_.root(),
                        static_cast<std::int16_t>(place.x()), static_cast<std::int16_t>(place.y()),
                        0);
    x_.finish();
}

} // namespace brellowind::test
