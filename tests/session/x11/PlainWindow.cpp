// SPDX-License-Identifier: MIT

#include "session/x11/PlainWindow.h"

#include "session/EventLoop.h"

#include <gtest/gtest.h>

namespace brellowind::test {

PlainWindow::PlainWindow(const QString& display, QRect geometry, Kind kind)
    : client_(display), id_(xcb_generate_id(client_.get())) {
    const std::uint32_t values[] = {colour().rgb() & 0xffffff, kind == Kind::unmanaged,
                                    XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_STRUCTURE_NOTIFY};
    xcb_create_window(
        client_.get(), XCB_COPY_FROM_PARENT, id_, client_.root(),
        static_cast<std::int16_t>(geometry.x()), static_cast<std::int16_t>(geometry.y()),
        static_cast<std::uint16_t>(geometry.width()), static_cast<std::uint16_t>(geometry.height()),
        0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
        XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    if (kind == Kind::fullScreen) {
        const auto fullScreen = client_.atom("_NET_WM_STATE_FULLSCREEN");
        xcb_change_property(client_.get(), XCB_PROP_MODE_REPLACE, id_,
                            client_.atom("_NET_WM_STATE"), XCB_ATOM_ATOM, 32, 1, &fullScreen);
    }
    EXPECT_TRUE(waitUntil([this] {
        xcb_map_window(client_.get(),
                       id_); // a window manager that has just started may miss the first request
        return client_.isViewable(id_);
    }));
}

void PlainWindow::raise() {
    const std::uint32_t above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(client_.get(), id_, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    client_.finish();
}

void PlainWindow::moveTo(QPoint place) {
    const std::int32_t position[] = {place.x(), place.y()};
    xcb_configure_window(client_.get(), id_, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, position);
    client_.finish();
}

void PlainWindow::grabPointer() {
    const auto grab = client_.ask<xcb_grab_pointer, xcb_grab_pointer_reply>(
        std::uint8_t(0), id_, std::uint16_t(XCB_EVENT_MASK_POINTER_MOTION),
        std::uint8_t(XCB_GRAB_MODE_ASYNC), std::uint8_t(XCB_GRAB_MODE_ASYNC),
        xcb_window_t(XCB_WINDOW_NONE), xcb_cursor_t(XCB_CURSOR_NONE),
        xcb_timestamp_t(XCB_CURRENT_TIME));
    EXPECT_TRUE(grab && grab->status == XCB_GRAB_STATUS_SUCCESS);
}

void PlainWindow::grabKeyboard() {
    const auto grab = client_.ask<xcb_grab_keyboard, xcb_grab_keyboard_reply>(
        std::uint8_t(0), id_, xcb_timestamp_t(XCB_CURRENT_TIME), std::uint8_t(XCB_GRAB_MODE_ASYNC),
        std::uint8_t(XCB_GRAB_MODE_ASYNC));
    EXPECT_TRUE(grab && grab->status == XCB_GRAB_STATUS_SUCCESS);
}

int PlainWindow::presses() {
    client_.finish();
    int count = 0;
    while (auto* event = xcb_poll_for_event(client_.get())) {
        count += (event->response_type & 0x7f) == XCB_BUTTON_PRESS;
        std::free(event);
    }
    return count;
}

} // namespace brellowind::test
