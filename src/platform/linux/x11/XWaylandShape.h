// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/x11/OverlayShape.h"
#include "platform/linux/x11/X11Shape.h"
#include "platform/linux/x11/XWaylandHover.h"

#include <QAbstractNativeEventFilter>

namespace brellowind::platform {

/// The input shape of a window under GNOME's compositor, which reads it only when the window's size
/// changes, and discards it when the content changes at the same size.
///
/// Therefore every frame changes the window's height, and XWayland commits height and content
/// together. The height is a few transparent pixels larger than Qt's; the resize events are hidden
/// from Qt. The outline always receives input, and the pointer over it is reported as hover.
class XWaylandShape final : public OverlayShape, public QAbstractNativeEventFilter {
public:
    /// The native window of `window` must exist. All references must outlive this object.
    XWaylandShape(QWindow& window, WindowPointer& pointer, MainLoop& mainLoop,
                  const QDBusConnection& sessionBus);

    void update(const Path& outline, const std::vector<Rect>& inputRects, double scale,
                bool ignoresMouseEvents) override;
    void present(const std::function<void()>& flush) override;

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    QRect geometry() const;
    void setCommitsAllowed(bool allowed) const;

    X11Connection x11_;
    const QWindow& qtWindow_;
    xcb_window_t window_;
    X11Shape shape_;
    xcb_atom_t commitsAllowed_;
    int extra_ = 0; ///< additional height in pixels
    XWaylandHover hover_;
};

} // namespace brellowind::platform
