// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/x11/X11Shape.h"

#include <QAbstractNativeEventFilter>
#include <QWindow>
#include <functional>

namespace brellowind::platform {

/// The input shape of a window under GNOME's compositor, which reads it only when the window's size
/// changes, and discards it when the content changes at the same size.
///
/// Therefore every frame changes the window's height, and XWayland commits height and content
/// together. The height is a few transparent pixels larger than Qt's; the resize events are hidden
/// from Qt.
class XWaylandShape final : public QAbstractNativeEventFilter {
public:
    /// The native window of `window` must exist and outlive this object.
    explicit XWaylandShape(const QWindow& window);

    /// `input` is in pixels.
    void update(const QRegion& input) { shape_.setInput(input); }

    /// Presents a frame. `flush` sends it to the X server.
    void present(const std::function<void()>& flush);

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
};

} // namespace brellowind::platform
