// SPDX-License-Identifier: MIT

#include "platform/macos/window/MacOverlay.h"

#include "platform/qt/PainterPath.h"

#include <QPlatformSurfaceEvent>
#include <algorithm>
#include <utility>

namespace brellowind::platform {

MacOverlay::MacOverlay(QWindow& window, Pointer& pointer, MakeNativeOverlay makeNative)
    : window_(window), pointer_(pointer), makeNative_(std::move(makeNative)) {
    // A panel: Qt lets the user resize other frameless windows, and shows them among those of full
    // screens. Set once: Qt would undo what is set natively.
    window_.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint |
                     Qt::WindowDoesNotAcceptFocus);
    window_.installEventFilter(this);
}

void MacOverlay::setFrame(const Rect& frame) {
    frame_ = frame;
    if (native_)
        native_->setFrame(frame_);
    else
        window_.create(); // which adopts the frame
}

void MacOverlay::orderFrontRegardless() {
    window_.show();
    native_->setFrame(frame_); // wherever Qt has shown it
    native_->orderFrontRegardless();
}

void MacOverlay::setOutline(const Path& outline, const std::vector<Rect>& inputRects) {
    outline_ = outline;
    inputRects_ = inputRects;
    takeMouse(pointerWithin().has_value()); // the window is drawing and follows the pointer itself
}

void MacOverlay::setIgnoresMouseEvents(bool ignores) {
    if (std::exchange(ignoresMouseEvents_, ignores) == ignores)
        return;
    monitor_ = ignores ? Subscription() : pointer_.addMonitor([this] { updateHover(); });
    updateHover();
}

void MacOverlay::setCovered(bool covered) {
    isCovered_ = covered;
    updateHover();
}

bool MacOverlay::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::PlatformSurface) {
        const auto change = static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType();
        if (change == QPlatformSurfaceEvent::SurfaceCreated)
            adoptNativeWindow();
        else
            native_.reset();
    }
    return QObject::eventFilter(watched, event);
}

/// Qt makes it anew when it moves the window to another screen.
void MacOverlay::adoptNativeWindow() {
    native_ = makeNative_(window_.winId());
    native_->setFrame(frame_);
    native_->setIgnoresMouseEvents(!takesMouse_);
}

/// Where in the window the pointer is, if the window wants it there.
std::optional<QPointF> MacOverlay::pointerWithin() {
    const auto location = ignoresMouseEvents_ ? std::nullopt : pointer_.location();
    if (!location)
        return std::nullopt;
    const Point at{location->x - frame_.x, frame_.maxY() - location->y};
    const QPointF position(at.x, at.y);
    const bool isInInputRect =
        std::ranges::any_of(inputRects_, [at](const Rect& rect) { return rect.contains(at); });
    if (!isInInputRect && !painterPath(outline_).contains(position))
        return std::nullopt;
    return position;
}

void MacOverlay::updateHover() {
    const auto position = pointerWithin();
    takeMouse(position.has_value());
    hover_.move(isCovered_ ? std::nullopt : position);
}

void MacOverlay::takeMouse(bool takes) {
    if (std::exchange(takesMouse_, takes) != takes && native_)
        native_->setIgnoresMouseEvents(!takes);
}

} // namespace brellowind::platform
