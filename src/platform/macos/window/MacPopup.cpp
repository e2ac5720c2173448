// SPDX-License-Identifier: MIT

#include "platform/macos/window/MacPopup.h"

#include "platform/qt/PopupPosition.h"

#include <QGuiApplication>
#include <QScreen>
#include <utility>

namespace brellowind::platform {
namespace {

/// Where Qt has a point of the desktop: its origin is the primary screen's upper left corner.
QPointF qtPoint(Point point) {
    return {point.x, QGuiApplication::primaryScreen()->geometry().height() - point.y};
}

} // namespace

void MacPopup::show(const Popup& popup, std::function<void()> onClose) {
    if (shown_)
        shown_->window.close();
    auto& window = popup.window;
    window.setFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    window.setTransientParent(&popup.overlay); // Qt lifts it above the overlay then
    window.setPosition(popupPosition(popup));
    shown_ = std::make_unique<Shown>(window, std::move(onClose));
    shown_->monitor = pointer_.addMonitor([this] { updateHover(); });
    qGuiApp->installEventFilter(this);
    window.show();
}

bool MacPopup::eventFilter(QObject* receiver, QEvent* event) {
    if (!shown_ || !receiver->isWindowType())
        return false;
    const bool isPopup = receiver == &shown_->window;
    if (event->type() == QEvent::Hide && isPopup)
        release();
    if (event->type() != QEvent::MouseButtonPress || isPopup)
        return false;
    shown_->window.close();
    return true;
}

void MacPopup::updateHover() {
    const auto location = pointer_.location();
    auto& window = shown_->window;
    const QPointF position = location ? window.mapFromGlobal(qtPoint(*location)) : QPointF(-1, -1);
    const bool isInside = QRectF(QPointF(0, 0), window.size()).contains(position);
    shown_->hover.move(isInside ? std::optional(position) : std::nullopt);
}

void MacPopup::release() {
    qGuiApp->removeEventFilter(this);
    const auto shown = std::exchange(shown_, nullptr);
    shown->onClose();
}

} // namespace brellowind::platform
