#include "platform/linux/x11/XWaylandMenuFocus.h"

#include <QEvent>
#include <QSurfaceFormat>

namespace brellowind::platform {

XWaylandMenuFocus::XWaylandMenuFocus() {
    QSurfaceFormat format;
    format.setAlphaBufferSize(8);
    holder_.setFormat(format);
    holder_.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    holder_.installEventFilter(this);
}

void XWaylandMenuFocus::follow(QWindow& menu) {
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
    } else if (event->type() == QEvent::FocusOut && menu_) {
        menu_->close();
    }
    return QObject::eventFilter(watched, event);
}

void XWaylandMenuFocus::show(QPoint place) {
    holder_.setGeometry(QRect(place, QSize(1, 1)));
    holder_.show();
    holder_.requestActivate();
}

} // namespace brellowind::platform
