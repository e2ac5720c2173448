#pragma once

#include <QRect>
#include <QRegion>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>
#include <xcb/shape.h>
#include <xcb/xcb.h>

namespace brellowind::test {

/// Another client of the X server, with windows of its own, and the user's hand on the mouse.
class OtherProgram {
public:
    enum class Kind { managed, bypassing };

    OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;
    ~OtherProgram();

    /// Shows a window of one colour, and returns when it is there.
    xcb_window_t open(const QRect& frame, Kind kind, std::uint32_t colour = 0xff0000);
    void close(xcb_window_t window);
    void raise(xcb_window_t window);
    void move(xcb_window_t window, QPoint to);
    void makeFullScreen(xcb_window_t window);

    void movePointer(QPoint to);
    void click(QPoint at);

    /// From now on `window` alone gets what the pointer does.
    void grabPointer(xcb_window_t window);

    /// How often `window` has been clicked.
    int clicks(xcb_window_t window);

    /// How often a window has been mapped, unmapped, moved, resized or restacked, and how often its
    /// shape has been set, since the first such question about it.
    int structureEvents(xcb_window_t window);
    int shapeEvents(xcb_window_t window);

    void setScreenSaverActive(bool active);

    /// The window with the keyboard focus.
    xcb_window_t focus();

    std::optional<QRect> frame(xcb_window_t window);
    bool isViewable(xcb_window_t window);
    bool bypassesWindowManager(xcb_window_t window);
    QRegion shape(xcb_window_t window, xcb_shape_kind_t kind);

    /// The windows that the root holds and shows, the topmost last.
    std::vector<xcb_window_t> stack();

    /// The window that the root holds and `window` is or is in.
    xcb_window_t topLevel(xcb_window_t window);
    bool isAbove(xcb_window_t upper, xcb_window_t lower);

    /// The colour that the screen shows.
    std::uint32_t pixel(QPoint at);

    /// The owner of a selection, or 0.
    xcb_window_t selectionOwner(const char* selection);

private:
    xcb_atom_t atom(const char* name);
    void sync();
    void drainEvents();

    xcb_connection_t* connection_;
    xcb_screen_t* screen_;
    xcb_window_t root_;
    std::uint8_t shapeNotify_;
    std::map<xcb_window_t, int> clicks_;
    std::map<xcb_window_t, int> structureEvents_;
    std::map<xcb_window_t, int> shapeEvents_;
};

} // namespace brellowind::test
