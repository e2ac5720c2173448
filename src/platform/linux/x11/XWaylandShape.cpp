#include "platform/linux/x11/XWaylandShape.h"

#include "platform/qt/OutlineRegion.h"

#include <QCoreApplication>
#include <qpa/qplatformwindow.h>

namespace brellowind::platform {
namespace {

constexpr int mostExtra = 2; ///< with two Qt's own height is always another one

} // namespace

XWaylandShape::XWaylandShape(const QWindow& window)
    : qtWindow_(window), window_(static_cast<xcb_window_t>(window.winId())), shape_(x11_, window_) {
    constexpr std::uint32_t transparent = 0;
    xcb_change_window_attributes(x11_.get(), window_, XCB_CW_BACK_PIXEL, &transparent);
    QCoreApplication::instance()->installNativeEventFilter(this);
}

void XWaylandShape::update(const Path& outline, double scale) {
    shape_.setInput(outlineRegion(outline, scale));
}

void XWaylandShape::beginFrame() {
    extra_ = extra_ % mostExtra + 1;
    const auto height = static_cast<std::uint32_t>(this->height() + extra_);
    xcb_configure_window(x11_.get(), window_, XCB_CONFIG_WINDOW_HEIGHT, &height);
    xcb_clear_area(x11_.get(), 0, window_, 0, static_cast<std::int16_t>(this->height()), 0, 0);
}

bool XWaylandShape::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
    auto& event = *static_cast<xcb_generic_event_t*>(message);
    if (type != "xcb_generic_event_t" || eventType(event) != XCB_CONFIGURE_NOTIFY)
        return false;
    auto& configured = reinterpret_cast<xcb_configure_notify_event_t&>(event);
    const int extra = configured.height - height();
    if (configured.event == window_ && extra > 0 && extra <= mostExtra)
        configured.height = static_cast<std::uint16_t>(height());
    return false;
}

/// In pixels, as Qt has asked for it.
int XWaylandShape::height() const {
    return qtWindow_.handle()->geometry().height();
}

} // namespace brellowind::platform
