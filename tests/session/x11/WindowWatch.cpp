// SPDX-License-Identifier: MIT

#include "session/x11/WindowWatch.h"

namespace brellowind::test {

WindowWatch::WindowWatch(const QString& display, xcb_window_t window)
    : client_(display),
      shapeNotify_(xcb_get_extension_data(client_.get(), &xcb_shape_id)->first_event +
                   XCB_SHAPE_NOTIFY) {
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(client_.get(), window, XCB_CW_EVENT_MASK, &mask);
    xcb_shape_select_input(client_.get(), window, 1);
    client_.finish();
}

int WindowWatch::structureEvents() {
    count();
    return structureEvents_;
}

int WindowWatch::shapeEvents() {
    count();
    return shapeEvents_;
}

void WindowWatch::count() {
    client_.finish();
    while (auto* event = xcb_poll_for_event(client_.get())) {
        const int type = event->response_type & 0x7f;
        shapeEvents_ += type == shapeNotify_;
        structureEvents_ +=
            type == XCB_MAP_NOTIFY || type == XCB_UNMAP_NOTIFY || type == XCB_CONFIGURE_NOTIFY;
        std::free(event);
    }
}

} // namespace brellowind::test
