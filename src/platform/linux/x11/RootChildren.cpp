// SPDX-License-Identifier: MIT

#include "platform/linux/x11/RootChildren.h"

#include "platform/linux/x11/X11Connection.h"

#include <utility>

namespace brellowind::platform {

RootChildren::RootChildren(xcb_window_t root, Handler handler)
    : handler_(std::move(handler)), connection_(openX11Display()) {
    if (!connection_)
        return;
    constexpr std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection_.get(), root, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection_.get());
    notifier_ = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection_.get()),
                                                  QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this] { read(); });
}

void RootChildren::read() {
    while (const auto event = X11Answer<xcb_generic_event_t>(xcb_poll_for_event(connection_.get())))
        handler_(*event);
    if (xcb_connection_has_error(connection_.get()) != 0)
        notifier_->setEnabled(false);
}

} // namespace brellowind::platform
