#include "views/PopupGrab.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace brellowind {

void PopupGrab::setWindow(QQuickWindow* window) {
    if (window == window_)
        return;
    if (window_)
        window_->disconnect(this);
    window_ = window;
    if (window_)
        connect(window_, &QWindow::visibleChanged, this, &PopupGrab::follow);
    Q_EMIT windowChanged();
}

void PopupGrab::follow(bool shown) {
    if (shown) {
        qGuiApp->installEventFilter(this);
        return;
    }
    qGuiApp->removeEventFilter(this);
    grab(false);
}

/// X11 gives a popup nothing by itself; other systems do, and cannot be asked to.
void PopupGrab::grab(bool grabbed) {
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    window_->setMouseGrabEnabled(grabbed);
    window_->setKeyboardGrabEnabled(grabbed);
}

bool PopupGrab::eventFilter(QObject* receiver, QEvent* event) {
    if (!receiver->isWindowType())
        return false;
    switch (event->type()) {
    case QEvent::Expose:
        if (receiver == window_ && window_->isExposed())
            grab(true); // not earlier: a window that is not seen yet can grab nothing
        return false;
    case QEvent::MouseButtonPress: {
        const QPointF at = static_cast<QMouseEvent*>(event)->position();
        if (receiver == window_ && QRectF({}, QSizeF(window_->size())).contains(at))
            return false;
        break;
    }
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
            return false;
        break;
    default:
        return false;
    }
    window_->close();
    return true;
}

} // namespace brellowind
