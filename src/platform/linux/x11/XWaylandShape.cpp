// SPDX-License-Identifier: MIT

#include "platform/linux/x11/XWaylandShape.h"

#include "platform/qt/OutlineRegion.h"

#include <QCoreApplication>
#include <qpa/qplatformwindow.h>

namespace brellowind::platform {
namespace {

/// The height repeats after this many frames; XWayland never coalesces as many.
constexpr int mostExtra = 8;

} // namespace

XWaylandShape::XWaylandShape(QWindow& window, WindowPointer& pointer, MainLoop& mainLoop,
                             const QDBusConnection& sessionBus)
    : qtWindow_(window), window_(static_cast<xcb_window_t>(window.winId())), shape_(x11_, window_),
      commitsAllowed_(x11_.atom("_XWAYLAND_ALLOW_COMMITS")),
      hover_(window, pointer, mainLoop, sessionBus) {
    constexpr std::uint32_t transparent = 0;
    xcb_change_window_attributes(x11_.get(), window_, XCB_CW_BACK_PIXEL, &transparent);
    QCoreApplication::instance()->installNativeEventFilter(this);
}

void XWaylandShape::update(const Path& outline, const std::vector<Rect>& inputRects, double scale,
                           bool ignoresMouseEvents) {
    const QRegion region = outlineRegion(outline, scale);
    shape_.setInput(ignoresMouseEvents ? region : region | rectsRegion(inputRects, scale));
}

void XWaylandShape::present(const std::function<void()>& flush) {
    extra_ = extra_ % mostExtra + 1;
    const auto height = static_cast<std::uint32_t>(geometry().height() + extra_);
    setCommitsAllowed(false);
    xcb_configure_window(x11_.get(), window_, XCB_CONFIG_WINDOW_HEIGHT, &height);
    flush();
    setCommitsAllowed(true);
    x11_.flush();
}

bool XWaylandShape::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
    auto& event = *static_cast<xcb_generic_event_t*>(message);
    if (type != "xcb_generic_event_t" || eventType(event) != XCB_CONFIGURE_NOTIFY)
        return false;
    auto& configured = reinterpret_cast<xcb_configure_notify_event_t&>(event);
    const QRect known = geometry();
    const int extra = configured.height - known.height();
    if (configured.event != window_ || extra <= 0 || extra > mostExtra)
        return false;
    configured.height = static_cast<std::uint16_t>(known.height());
    return QPoint(configured.x, configured.y) == known.topLeft() &&
           configured.width == known.width();
}

/// The geometry that Qt has requested, in pixels.
QRect XWaylandShape::geometry() const {
    return qtWindow_.handle()->geometry();
}

/// Allows or blocks commits of the window's content by XWayland.
void XWaylandShape::setCommitsAllowed(bool allowed) const {
    const std::uint32_t value = allowed;
    xcb_change_property(x11_.get(), XCB_PROP_MODE_REPLACE, window_, commitsAllowed_,
                        XCB_ATOM_CARDINAL, 32, 1, &value);
}

} // namespace brellowind::platform
