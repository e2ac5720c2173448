// SPDX-License-Identifier: MIT

#include "desktops/clients/InputLog.h"

#include <cstdio>
#include <unistd.h>

namespace brellowind::test {
namespace {

wl_keyboard_listener keyboardListener() {
    wl_keyboard_listener listener{};
    listener.keymap = [](void*, wl_keyboard*, std::uint32_t, std::int32_t file, std::uint32_t) {
        ::close(file);
    };
    listener.enter = [](void*, wl_keyboard*, std::uint32_t, wl_surface*, wl_array*) {
        std::puts("keyboard enter");
    };
    listener.leave = [](void*, wl_keyboard*, std::uint32_t, wl_surface*) {
        std::puts("keyboard leave");
    };
    listener.key = [](void*, wl_keyboard*, std::uint32_t, std::uint32_t, std::uint32_t key,
                      std::uint32_t state) {
        if (state == WL_KEYBOARD_KEY_STATE_PRESSED)
            std::printf("key %u\n", key);
    };
    listener.modifiers = [](void*, wl_keyboard*, std::uint32_t, std::uint32_t, std::uint32_t,
                            std::uint32_t, std::uint32_t) {};
    return listener;
}

wl_touch_listener touchListener() {
    wl_touch_listener listener{};
    listener.down = [](void*, wl_touch*, std::uint32_t, std::uint32_t, wl_surface*, std::int32_t,
                       wl_fixed_t x, wl_fixed_t y) {
        std::printf("tap %g %g\n", wl_fixed_to_double(x), wl_fixed_to_double(y));
    };
    listener.up = [](void*, wl_touch*, std::uint32_t, std::uint32_t, std::int32_t) {};
    listener.motion = [](void*, wl_touch*, std::uint32_t, std::int32_t, wl_fixed_t, wl_fixed_t) {};
    listener.frame = [](void*, wl_touch*) {};
    listener.cancel = [](void*, wl_touch*) {};
    return listener;
}

} // namespace

InputLog::InputLog(const WaylandConnection& connection)
    : seat_(connection.bind<wl_seat>(wl_seat_interface, 1)) {
    static constexpr wl_seat_listener listener{
        [](void* self, wl_seat*, std::uint32_t capabilities) {
            static_cast<InputLog*>(self)->listen(capabilities);
        },
        [](void*, wl_seat*, const char*) {}};
    wl_seat_add_listener(seat_, &listener, this);
    connection.finish(); // binds the devices before a surface can receive input
}

wl_pointer_listener InputLog::pointerListener() {
    wl_pointer_listener listener{};
    listener.enter = [](void* self, wl_pointer*, std::uint32_t, wl_surface*, wl_fixed_t x,
                        wl_fixed_t y) {
        static_cast<InputLog*>(self)->moveTo(x, y);
        std::printf("pointer enter %g %g\n", wl_fixed_to_double(x), wl_fixed_to_double(y));
    };
    listener.leave = [](void*, wl_pointer*, std::uint32_t, wl_surface*) {
        std::puts("pointer leave");
    };
    listener.motion = [](void* self, wl_pointer*, std::uint32_t, wl_fixed_t x, wl_fixed_t y) {
        static_cast<InputLog*>(self)->moveTo(x, y);
    };
    listener.button = [](void* self, wl_pointer*, std::uint32_t, std::uint32_t,
                         std::uint32_t button, std::uint32_t state) {
        const auto& log = *static_cast<InputLog*>(self);
        if (state == WL_POINTER_BUTTON_STATE_PRESSED)
            std::printf("press %g %g %u\n", log.x_, log.y_, button);
    };
    listener.axis = [](void*, wl_pointer*, std::uint32_t, std::uint32_t, wl_fixed_t) {};
    return listener;
}

void InputLog::moveTo(wl_fixed_t x, wl_fixed_t y) {
    x_ = wl_fixed_to_double(x);
    y_ = wl_fixed_to_double(y);
}

void InputLog::listen(std::uint32_t capabilities) {
    static const auto onPointer = pointerListener();
    static const auto onKeyboard = keyboardListener();
    static const auto onTouch = touchListener();
    if ((capabilities & WL_SEAT_CAPABILITY_POINTER) && !pointer_) {
        pointer_ = wl_seat_get_pointer(seat_);
        wl_pointer_add_listener(pointer_, &onPointer, this);
    }
    if ((capabilities & WL_SEAT_CAPABILITY_KEYBOARD) && !keyboard_) {
        keyboard_ = wl_seat_get_keyboard(seat_);
        wl_keyboard_add_listener(keyboard_, &onKeyboard, this);
    }
    if ((capabilities & WL_SEAT_CAPABILITY_TOUCH) && !touch_) {
        touch_ = wl_seat_get_touch(seat_);
        wl_touch_add_listener(touch_, &onTouch, this);
    }
}

} // namespace brellowind::test
