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

/// A connection to an X server of a test's own, and what it tells of any window. Everything is in
/// pixels. Fails the running test when it cannot connect.
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

    /// Sends a request and waits for its answer; null when it failed.
    template <auto Request, auto Reply, typename... Arguments>
    auto ask(Arguments... arguments) const {
        auto* answer = Reply(connection_, Request(connection_, arguments...), nullptr);
        using Answer = std::remove_pointer_t<decltype(answer)>;
        return std::unique_ptr<Answer, decltype(&std::free)>(answer, &std::free);
    }

    /// Returns when the server has done all that was asked of it.
    void finish() const;

    xcb_atom_t atom(const char* name) const;

    /// The numbers of a property of a window; empty when it has none.
    QList<quint32> property(xcb_window_t window, const char* name) const;

    /// Whether somebody owns a selection.
    bool isOwned(const char* selection) const;

    /// The children of the root window that are shown, from bottom to top.
    QList<xcb_window_t> stack() const;

    /// Whether both windows are shown, `upper` above `lower`.
    bool isAbove(xcb_window_t upper, xcb_window_t lower) const;

    /// The child of the root window that `window` is or stands in.
    xcb_window_t frameOf(xcb_window_t window) const;

    /// Where a window is on the root window; a null rectangle when there is no such window.
    QRect geometry(xcb_window_t window) const;

    bool isViewable(xcb_window_t window) const;
    bool overridesRedirect(xcb_window_t window) const;

    /// The bounding or the input shape of a window.
    QRegion shape(xcb_window_t window, xcb_shape_kind_t kind) const;

    /// The window that has the keyboard.
    xcb_window_t focus() const;

    /// What is seen at a place.
    QColor pixel(QPoint place) const;

    void setScreenSaverActive(bool active) const;

private:
    QString display_;
    xcb_connection_t* connection_;
    const xcb_screen_t* screen_ = nullptr;
};

} // namespace brellowind::test
