// SPDX-License-Identifier: MIT

#include "platform/linux/x11/X11ScreenSaver.h"

#include <utility>
#include <xcb/screensaver.h>

namespace brellowind::platform {
namespace {

bool isActive(std::uint8_t state) {
    return state == XCB_SCREENSAVER_STATE_ON || state == XCB_SCREENSAVER_STATE_CYCLE;
}

} // namespace

X11ScreenSaver::X11ScreenSaver(const X11Connection& x11, std::function<void()> onChange)
    : onChange_(std::move(onChange)),
      observer_([this](const auto& event) { return handle(event); }) {
    const auto* extension = xcb_get_extension_data(x11.get(), &xcb_screensaver_id);
    if (!extension || !extension->present)
        return;
    notify_ = extension->first_event + XCB_SCREENSAVER_NOTIFY;
    xcb_screensaver_select_input(x11.get(), x11.root(), XCB_SCREENSAVER_EVENT_NOTIFY_MASK);
    const auto saver =
        x11.ask<xcb_screensaver_query_info, xcb_screensaver_query_info_reply>(x11.root());
    active_ = saver && platform::isActive(saver->state);
}

bool X11ScreenSaver::handle(const xcb_generic_event_t& event) {
    if (eventType(event) == notify_) {
        const auto& change = eventAs<xcb_screensaver_notify_event_t>(event);
        const bool active = platform::isActive(change.state);
        if (std::exchange(active_, active) != active)
            onChange_();
    }
    return false;
}

} // namespace brellowind::platform
