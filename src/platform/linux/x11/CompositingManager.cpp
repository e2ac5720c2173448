// SPDX-License-Identifier: MIT

#include "platform/linux/x11/CompositingManager.h"

#include <string>
#include <utility>
#include <xcb/xfixes.h>

namespace brellowind::platform {

CompositingManager::CompositingManager(const X11Connection& x11, std::function<void()> onChange)
    : onChange_(std::move(onChange)),
      selection_(x11.atom(("_NET_WM_CM_S" + std::to_string(x11.screenNumber())).c_str())),
      observer_([this](const auto& event) { return handle(event); }) {
    const auto* xfixes = xcb_get_extension_data(x11.get(), &xcb_xfixes_id);
    if (xfixes && xfixes->present) {
        selectionNotify_ = xfixes->first_event + XCB_XFIXES_SELECTION_NOTIFY;
        x11.ask<xcb_xfixes_query_version, xcb_xfixes_query_version_reply>(
            std::uint32_t(XCB_XFIXES_MAJOR_VERSION), std::uint32_t(XCB_XFIXES_MINOR_VERSION));
        xcb_xfixes_select_selection_input(
            x11.get(), x11.root(), selection_,
            XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    }
    const auto owner = x11.ask<xcb_get_selection_owner, xcb_get_selection_owner_reply>(selection_);
    running_ = owner && owner->owner != XCB_WINDOW_NONE;
}

bool CompositingManager::handle(const xcb_generic_event_t& event) {
    const auto& change = eventAs<xcb_xfixes_selection_notify_event_t>(event);
    if (eventType(event) == selectionNotify_ && change.selection == selection_) {
        const bool running = change.owner != XCB_WINDOW_NONE;
        if (std::exchange(running_, running) != running)
            onChange_();
    }
    return false;
}

} // namespace brellowind::platform
