#include "views/MenuWindow.h"

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

MenuWindow::MenuWindow(QWindow* parent) : QQuickWindow(parent) {
    setFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    setColor(Qt::transparent);
}

bool MenuWindow::event(QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        const QPointF position = static_cast<QMouseEvent*>(event)->position();
        if (!QRectF(QPointF(0, 0), size()).contains(position))
            return close();
    }
    return QQuickWindow::event(event);
}

void MenuWindow::exposeEvent(QExposeEvent* event) {
    QQuickWindow::exposeEvent(event);
    if (isExposed())
        hold(true);
}

void MenuWindow::hideEvent(QHideEvent* event) {
    hold(false);
    QQuickWindow::hideEvent(event);
}

void MenuWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QQuickWindow::keyPressEvent(event);
}

void MenuWindow::resizeEvent(QResizeEvent* event) {
    QQuickWindow::resizeEvent(event);
    setMask(roundedRegion(size(), radius()));
}

void MenuWindow::hold(bool held) {
    if (held == held_)
        return;
    held_ = held;
    setMouseGrabEnabled(held);
    setKeyboardGrabEnabled(held);
}

} // namespace brellowind
