#pragma once

#include "session/x11/XClient.h"

namespace brellowind::test {

/// A window of another program, of one colour, that counts what is done to it.
class PlainWindow {
public:
    enum class Kind {
        managed,    ///< the window manager frames it
        fullScreen, ///< the window manager makes it cover the screen
        unmanaged,  ///< no window manager knows of it
    };

    /// Shown once this returns; fails the running test otherwise.
    PlainWindow(const QString& display, QRect geometry, Kind kind);

    /// What it is filled with.
    static QColor colour() { return QColor::fromRgb(0x3366cc); }

    xcb_window_t id() const { return id_; }

    void raise();
    void moveTo(QPoint place);

    /// From now on it alone gets what the pointer does.
    void grabPointer();

    /// From now on it alone gets what is typed.
    void grabKeyboard();

    /// How often a button of the pointer was pressed on it since this was last asked.
    int presses();

private:
    XClient client_;
    xcb_window_t id_;
};

} // namespace brellowind::test
