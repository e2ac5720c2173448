// SPDX-License-Identifier: MIT

#include "platform/linux/x11/X11Connection.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <cstring>
#include <utility>

namespace brellowind::platform {
namespace {

xcb_connection_t* applicationConnection() {
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
}

/// The default screen of DISPLAY, as Qt uses it.
int defaultScreen() {
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    xcb_parse_display(nullptr, &host, &display, &screen);
    std::free(host);
    return screen;
}

xcb_window_t rootOf(xcb_connection_t* connection, int screenNumber) {
    auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (int i = 0; i < screenNumber && screen.rem > 1; ++i)
        xcb_screen_next(&screen);
    return screen.data->root;
}

} // namespace

X11Connection::X11Connection()
    : connection_(applicationConnection()), screenNumber_(defaultScreen()),
      root_(rootOf(connection_, screenNumber_)) {}

bool X11Connection::owns(xcb_window_t window) const {
    const auto* setup = xcb_get_setup(connection_);
    return (window & ~setup->resource_id_mask) == setup->resource_id_base;
}

xcb_atom_t X11Connection::atom(const char* name) const {
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    const auto answer = ask<xcb_intern_atom, xcb_intern_atom_reply>(std::uint8_t(0), length, name);
    return answer ? answer->atom : xcb_atom_t(XCB_ATOM_NONE);
}

X11EventObserver::X11EventObserver(Handler handler) : handler_(std::move(handler)) {
    QCoreApplication::instance()->installNativeEventFilter(this);
}

bool X11EventObserver::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
    return type == "xcb_generic_event_t" &&
           handler_(*static_cast<const xcb_generic_event_t*>(message));
}

} // namespace brellowind::platform
