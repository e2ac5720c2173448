// SPDX-License-Identifier: MIT

#include "platform/linux/x11/XWaylandMenuFocus.h"

#include <QEvent>
#include <QSurfaceFormat>
#include <QTimer>
#include <chrono>

namespace brellowind::platform {
namespace {

/// The window manager may remove the focus briefly while it gives it to the new window.
constexpr std::chrono::milliseconds changeOfFocus(150);

} // namespace

XWaylandMenuFocus::XWaylandMenuFocus() {
    QSurfaceFormat format;
    format.setAlphaBufferSize(8);
    holder_.setFormat(format);
    holder_.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    holder_.installEventFilter(this);
}

void XWaylandMenuFocus::attach(QWindow& menu) {
    if (menu_)
        menu_->removeEventFilter(this);
    menu_ = &menu;
    menu.installEventFilter(this);
}

bool XWaylandMenuFocus::eventFilter(QObject* watched, QEvent* event) {
    if (watched == menu_) {
        if (event->type() == QEvent::Show)
            show(menu_->position());
        else if (event->type() == QEvent::Hide)
            holder_.hide();
    } else if (event->type() == QEvent::FocusOut) {
        QTimer::singleShot(changeOfFocus, this, &XWaylandMenuFocus::closeWithoutFocus);
    }
    return QObject::eventFilter(watched, event);
}

void XWaylandMenuFocus::closeWithoutFocus() {
    if (menu_ && !holder_.isActive())
        menu_->close();
}

void XWaylandMenuFocus::show(QPoint position) {
    holder_.setGeometry(QRect(position, QSize(1, 1)));
    holder_.show();
    holder_.requestActivate();
}

} // namespace brellowind::platform
