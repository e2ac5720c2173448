// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractNativeEventFilter>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <memory>
#include <type_traits>
#include <xcb/xcb.h>

namespace brellowind::platform {

/// A reply of the X server; null if the request failed.
template <typename Answer>
struct FreeAnswer {
    void operator()(Answer* answer) const { std::free(answer); }
};
template <typename Answer>
using X11Answer = std::unique_ptr<Answer, FreeAnswer<Answer>>;

/// The Qt application's connection to its X server, so that requests are ordered with Qt's. Its
/// events are passed to `X11EventObserver`s before Qt handles them.
class X11Connection {
public:
    /// REQUIRES: a `QGuiApplication` on the platform "xcb".
    X11Connection();

    xcb_connection_t* get() const { return connection_; }
    xcb_window_t root() const { return root_; }
    int screenNumber() const { return screenNumber_; }

    /// Sends buffered requests.
    void flush() const { xcb_flush(connection_); }

    /// Whether a window belongs to this program.
    bool owns(xcb_window_t window) const;

    xcb_atom_t atom(const char* name) const;

    /// Sends a request and waits for its reply.
    template <auto Request, auto Reply, typename... Arguments>
    auto ask(Arguments... arguments) const {
        auto* answer = Reply(connection_, Request(connection_, arguments...), nullptr);
        return X11Answer<std::remove_pointer_t<decltype(answer)>>(answer);
    }

private:
    xcb_connection_t* connection_;
    int screenNumber_;
    xcb_window_t root_;
};

/// Receives every event of the application's connection before Qt handles it.
class X11EventObserver final : public QAbstractNativeEventFilter {
public:
    /// Returns true to hide the event from Qt.
    using Handler = std::function<bool(const xcb_generic_event_t&)>;

    explicit X11EventObserver(Handler handler);

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    Handler handler_;
};

/// The type of an event, without the flag for events sent by clients.
inline int eventType(const xcb_generic_event_t& event) {
    return event.response_type & 0x7f;
}

template <typename Event>
const Event& eventAs(const xcb_generic_event_t& event) {
    return reinterpret_cast<const Event&>(event);
}

} // namespace brellowind::platform
