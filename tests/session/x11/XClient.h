// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QList>
#include <QRect>
#include <QRegion>
#include <QString>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <type_traits>
#include <xcb/shape.h>
#include <xcb/xcb.h>

namespace brellowind::test {

/// A connection to the test's X server, and queries about any window. All lengths are in pixels.
/// Fails the test if it cannot connect.
class XClient {
public:
    explicit XClient(QString display);
    XClient(const XClient&) = delete;
    XClient& operator=(const XClient&) = delete;
    ~XClient();

    QString display() const { return display_; }
    xcb_connection_t* get() const { return connection_; }
    xcb_window_t root() const { return screen_->root; }
    const xcb_screen_t& screen() const { return *screen_; }

    /// Sends a request and waits for its reply; null on failure.
    template <auto Request, auto Reply, typename... Arguments>
    auto ask(Arguments... arguments) const {
        auto* answer = Reply(connection_, Request(connection_, arguments...), nullptr);
        using Answer = std::remove_pointer_t<decltype(answer)>;
        return std::unique_ptr<Answer, decltype(&std::free)>(answer, &std::free);
    }

    /// Round trip: waits until the server has processed all requests.
    void finish() const;

    xcb_atom_t atom(const char* name) const;

    /// The 32-bit values of a window's property; empty if it is not set.
    QList<quint32> property(xcb_window_t window, const char* name) const;

    /// Whether a selection has an owner.
    bool isOwned(const char* selection) const;

    /// The mapped children of the root window, from bottom to top.
    QList<xcb_window_t> stack() const;

    /// Whether both windows are mapped, `upper` above `lower`.
    bool isAbove(xcb_window_t upper, xcb_window_t lower) const;

    /// The top-level ancestor of `window`, or itself.
    xcb_window_t frameOf(xcb_window_t window) const;

    /// The geometry relative to the root window; null if there is no such window.
    QRect geometry(xcb_window_t window) const;

    bool isViewable(xcb_window_t window) const;
    bool overridesRedirect(xcb_window_t window) const;

    /// The bounding or the input shape of a window.
    QRegion shape(xcb_window_t window, xcb_shape_kind_t kind) const;

    /// The window with the keyboard focus.
    xcb_window_t focus() const;

    /// The colour of a pixel of the screen.
    QColor pixel(QPoint place) const;

    void setScreenSaverActive(bool active) const;

private:
    QString display_;
    xcb_connection_t* connection_;
    const xcb_screen_t* screen_ = nullptr;
};

} // namespace brellowind::test
