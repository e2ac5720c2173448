// SPDX-License-Identifier: MIT

#include "platform/linux/x11/X11Overlay.h"

#include "platform/linux/screens/QtScreens.h"

#include <QPlatformSurfaceEvent>
#include <cmath>

namespace brellowind::platform {
namespace {

int nearest(double coordinate) {
    return static_cast<int>(std::floor(coordinate + 0.5));
}

QRect wholePoints(const Rect& rect) {
    return {nearest(rect.x), nearest(rect.y), nearest(rect.width), nearest(rect.height)};
}

} // namespace

X11Overlay::Native::Native(X11Overlay& overlay)
    : shape(overlay.input_.shape(overlay.window_, [&overlay] { overlay.updateShape(); })),
      stayOnTop(overlay.x11_, overlay.window_, overlay.mainLoop_) {}

X11Overlay::X11Overlay(QWindow& window, MainLoop& mainLoop, ScreenLock& screenLock, X11Input& input)
    : window_(window), mainLoop_(mainLoop), screenLock_(screenLock), input_(input),
      screenSaver_(x11_, [this] { updateVisibility(); }),
      lockChange_(screenLock.onChange([this] { updateVisibility(); })) {
    window_.setFlags(Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint |
                     Qt::BypassWindowManagerHint | Qt::WindowDoesNotAcceptFocus);
    window_.installEventFilter(this);
    connect(&window_, &QWindow::screenChanged, this, &X11Overlay::updateShape);
}

void X11Overlay::setFrame(const Rect& frame) {
    const auto arrangement = ScreenArrangement::current();
    const auto target = arrangement.coordinates.logicalRect(frame);
    if (!target)
        return;
    window_.setScreen(arrangement.screens[static_cast<qsizetype>(target->screen)]);
    window_.setGeometry(wholePoints(target->logical));
    window_.requestUpdate();
    updateShape();
}

void X11Overlay::orderFrontRegardless() {
    ordered_ = true;
    updateVisibility();
    if (native_)
        native_->stayOnTop.raise();
}

void X11Overlay::setOutline(const Path& outline, const std::vector<Rect>& inputRects) {
    outline_ = outline;
    inputRects_ = inputRects;
    updateShape();
}

void X11Overlay::present(const std::function<void()>& flush) {
    if (native_)
        native_->shape->present(flush);
    else
        flush();
}

void X11Overlay::setIgnoresMouseEvents(bool ignores) {
    if (ignoresMouseEvents_ == ignores)
        return;
    ignoresMouseEvents_ = ignores;
    updateShape();
}

bool X11Overlay::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::PlatformSurface) {
        const auto change = static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType();
        if (change == QPlatformSurfaceEvent::SurfaceCreated)
            adoptNativeWindow();
        else
            native_.reset();
    } else if (event->type() == QEvent::Resize || event->type() == QEvent::Paint) {
        updateShape(); // the scale may have changed
    }
    return QObject::eventFilter(watched, event);
}

void X11Overlay::adoptNativeWindow() {
    native_.emplace(*this);
    forbidShadow();
    updateShape();
}

/// Some compositing managers draw shadows around all windows by default.
void X11Overlay::forbidShadow() {
    constexpr std::uint32_t none = 0;
    xcb_change_property(x11_.get(), XCB_PROP_MODE_REPLACE,
                        static_cast<xcb_window_t>(window_.winId()), x11_.atom("_COMPTON_SHADOW"),
                        XCB_ATOM_CARDINAL, 32, 1, &none);
}

void X11Overlay::updateShape() {
    if (native_)
        native_->shape->update(outline_, inputRects_, window_.devicePixelRatio(),
                               ignoresMouseEvents_);
}

void X11Overlay::updateVisibility() {
    const bool visible = ordered_ && !screenLock_.isLocked() && !screenSaver_.isActive();
    if (window_.isVisible() != visible)
        window_.setVisible(visible);
}

} // namespace brellowind::platform
