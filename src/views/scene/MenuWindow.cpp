#include "views/scene/MenuWindow.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QRegion>
#include <algorithm>
#include <cmath>

namespace brellowind {
namespace {

/// All that a rectangle with round corners touches. What it only touches in part shows little of
/// what is behind the corners.
QRegion roundedRegion(QSize size, double radius) {
    QRegion region(QRect(QPoint(0, 0), size));
    for (int y = 0; y < radius; ++y) {
        const double rise = std::max(0.0, radius - (y + 1));
        const int cut = static_cast<int>(radius - std::sqrt(radius * radius - rise * rise));
        for (const int row : {y, size.height() - 1 - y}) {
            region -= QRect(0, row, cut, 1);
            region -= QRect(size.width() - cut, row, cut, 1);
        }
    }
    return region;
}

} // namespace

MenuWindow::MenuWindow(QWindow* parent) : SceneWindow(parent) {
    setFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
}

bool MenuWindow::eventFilter(QObject* receiver, QEvent* event) {
    if (!isDismissedBy(receiver, event))
        return SceneWindow::eventFilter(receiver, event);
    close();
    return true;
}

/// A press or a key that comes to any window of this program while the menu is shown.
bool MenuWindow::isDismissedBy(const QObject* receiver, const QEvent* event) const {
    if (!receiver->isWindowType())
        return false;
    if (event->type() == QEvent::KeyPress)
        return static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (event->type() != QEvent::MouseButtonPress)
        return false;
    const QPointF at = static_cast<const QMouseEvent*>(event)->position();
    return receiver != this || !QRectF(QPointF(0, 0), size()).contains(at);
}

void MenuWindow::showEvent(QShowEvent* event) {
    SceneWindow::showEvent(event);
    qGuiApp->installEventFilter(this);
}

void MenuWindow::exposeEvent(QExposeEvent* event) {
    SceneWindow::exposeEvent(event);
    if (isExposed())
        hold(true); // not earlier: a window that is not seen yet can grab nothing
}

void MenuWindow::hideEvent(QHideEvent* event) {
    qGuiApp->removeEventFilter(this);
    hold(false);
    SceneWindow::hideEvent(event);
}

void MenuWindow::resizeEvent(QResizeEvent* event) {
    SceneWindow::resizeEvent(event);
    setMask(roundedRegion(size(), radius()));
}

/// X11 gives a popup nothing by itself; other systems do, and cannot be asked to.
void MenuWindow::hold(bool held) {
    if (held == held_ || QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    held_ = held;
    setMouseGrabEnabled(held);
    setKeyboardGrabEnabled(held);
}

} // namespace brellowind
