#pragma once

#include "platform/linux/x11/X11Shape.h"

#include <QAbstractNativeEventFilter>
#include <QWindow>
#include <functional>

namespace brellowind::platform {

/// Lets a window take the pointer within a part of it under GNOME's compositor, which looks at the
/// input shape of a window when its size changes, and forgets it when the window shows something
/// else at the same size.
///
/// So in every frame the window has another height, and XWayland hands over height and content
/// together. The height is a few pixels more than Qt gave it; they are transparent, and Qt does not
/// hear of them.
class XWaylandShape final : public QAbstractNativeEventFilter {
public:
    /// The native window of `window` exists and outlives this.
    explicit XWaylandShape(const QWindow& window);

    /// `input` is in pixels.
    void update(const QRegion& input) { shape_.setInput(input); }

    /// Shows a frame: calls `flush`, which sends it to the X server.
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
    int extra_ = 0; ///< pixels of height
};

} // namespace brellowind::platform
