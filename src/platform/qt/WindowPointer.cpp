// SPDX-License-Identifier: MIT

#include "platform/qt/WindowPointer.h"

#include <QMouseEvent>
#include <algorithm>
#include <cmath>

namespace brellowind::platform {
namespace {

/// Whether a mouse event is synthesised from touch. Qt on Wayland does not tell by the device.
bool isFromFinger(const QEvent& event) {
    return event.type() == QEvent::MouseMove &&
           static_cast<const QMouseEvent&>(event).source() == Qt::MouseEventSynthesizedByQt;
}

} // namespace

void WindowPointer::moveWithin(const Rect& frame, const QSinglePointEvent& event) {
    if (isFromFinger(event))
        return;
    const QPointF at = event.position();
    const double y = frame.maxY() - at.y();
    move(Point{frame.x + at.x(), std::min(y, std::nextafter(frame.maxY(), frame.y))});
}

void WindowPointer::leave() {
    move(std::nullopt);
}

void WindowPointer::move(std::optional<Point> location) {
    location_ = location;
    observers_->notify();
}

} // namespace brellowind::platform
