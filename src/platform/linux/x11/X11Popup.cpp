// SPDX-License-Identifier: MIT

#include "platform/linux/x11/X11Popup.h"

#include "platform/qt/PopupPosition.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QRegion>
#include <cmath>
#include <utility>
#include <xcb/xinput.h>

namespace brellowind::platform {
namespace {

/// The pixels that a rounded rectangle covers completely; partly covered ones would be blended with
/// black.
QRegion roundedRegion(QSize size, double radius) {
    QRegion region(QRect(QPoint(0, 0), size));
    for (int y = 0; y < radius; ++y) {
        const double rise = radius - y; // of the row's outer edge
        const double run = std::sqrt(radius * radius - rise * rise);
        const int cut = static_cast<int>(std::ceil(radius - run));
        for (const int row : {y, size.height() - 1 - y}) {
            region -= QRect(0, row, cut, 1);
            region -= QRect(size.width() - cut, row, cut, 1);
        }
    }
    return region;
}

/// Whether `window` can grab the pointer, which Qt's grab does not report. Uses the same kind of
/// grab as Qt, so that it also works while this program has a grab by a pressed button.
bool isPointerFree(const X11Connection& x11, xcb_window_t window) {
    const auto pointer =
        x11.ask<xcb_input_xi_get_client_pointer, xcb_input_xi_get_client_pointer_reply>(
            xcb_window_t(XCB_WINDOW_NONE));
    if (!pointer)
        return false;
    const std::uint32_t events = 0;
    const auto answer = x11.ask<xcb_input_xi_grab_device, xcb_input_xi_grab_device_reply>(
        window, xcb_timestamp_t(XCB_CURRENT_TIME), xcb_cursor_t(XCB_CURSOR_NONE), pointer->deviceid,
        std::uint8_t(XCB_INPUT_GRAB_MODE_22_ASYNC), std::uint8_t(XCB_INPUT_GRAB_MODE_22_ASYNC),
        std::uint8_t(XCB_INPUT_GRAB_OWNER_NO_OWNER), std::uint16_t(1), &events);
    return answer && answer->status == XCB_GRAB_STATUS_SUCCESS;
}

} // namespace

void X11Popup::show(const Popup& popup) {
    if (window_)
        window_->close();
    auto& window = popup.window;
    // Not of the type Popup, which Qt does not expose to assistive programs.
    window.setFlags(Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint |
                    Qt::BypassWindowManagerHint);
    window.setPosition(popupPosition(popup));
    window.create(); // required for the mask
    window.setMask(compositingManager_.isRunning()
                       ? QRegion()
                       : roundedRegion(window.size(), popup.cornerRadius));
    window_ = &window;
    qGuiApp->installEventFilter(this);
    window.show();
}

bool X11Popup::eventFilter(QObject* receiver, QEvent* event) {
    if (!window_ || !receiver->isWindowType())
        return false;
    switch (event->type()) {
    case QEvent::Expose:
        if (receiver == window_ && window_->isExposed())
            hold(); // an unmapped window cannot grab
        return false;
    case QEvent::Hide:
        if (receiver == window_)
            release();
        return false;
    case QEvent::MouseButtonPress:
        return handlePress(receiver, event);
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return handleKey(receiver, event);
    default:
        return false;
    }
}

void X11Popup::hold() {
    if (std::exchange(held_, true))
        return;
    const bool granted = isPointerFree(x11_, static_cast<xcb_window_t>(window_->winId())) &&
                         window_->setMouseGrabEnabled(true) &&
                         window_->setKeyboardGrabEnabled(true);
    if (!granted)
        window_->close();
}

void X11Popup::release() {
    qGuiApp->removeEventFilter(this);
    auto* window = window_.data();
    window_.clear();
    if (!std::exchange(held_, false))
        return;
    window->setMouseGrabEnabled(false);
    window->setKeyboardGrabEnabled(false);
}

/// During the grab a press outside the window is delivered to it, or to another window of this
/// program.
bool X11Popup::handlePress(const QObject* receiver, const QEvent* event) {
    const QPointF at = static_cast<const QMouseEvent*>(event)->position();
    if (receiver == window_ && QRectF(QPointF(0, 0), window_->size()).contains(at))
        return false;
    window_->close();
    return true;
}

/// Qt delivers keys to the window of this program that had the focus before; redirects them.
bool X11Popup::handleKey(const QObject* receiver, QEvent* event) {
    if (receiver == window_)
        return false;
    if (event->type() == QEvent::ShortcutOverride)
        event->accept(); // suppress that window's shortcuts
    else
        QCoreApplication::sendEvent(window_, event);
    return true;
}

} // namespace brellowind::platform
