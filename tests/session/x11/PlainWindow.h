// SPDX-License-Identifier: MIT

#pragma once

#include "session/x11/XClient.h"

namespace brellowind::test {

/// A window of another client, of one colour, that counts clicks.
class PlainWindow {
public:
    enum class Kind {
        managed,    ///< framed by the window manager
        fullScreen, ///< made full-screen by the window manager
        unmanaged,  ///< override-redirect
    };

    /// Shown after construction; fails the test otherwise.
    PlainWindow(const QString& display, QRect geometry, Kind kind);

    /// The colour of the window.
    static QColor colour() { return QColor::fromRgb(0x3366cc); }

    xcb_window_t id() const { return id_; }

    void raise();
    void moveTo(QPoint place);

    /// Grabs the pointer.
    void grabPointer();

    /// Grabs the keyboard.
    void grabKeyboard();

    /// The number of button presses on it since the last call.
    int presses();

private:
    XClient client_;
    xcb_window_t id_;
};

} // namespace brellowind::test
