#pragma once

#include "foundation/Path.h"
#include "platform/linux/x11/X11Shape.h"

#include <QAbstractNativeEventFilter>
#include <QWindow>

namespace brellowind::platform {

/// Lets a window take the pointer within an outline under a compositor that heeds a new input shape
/// only when the window is shown or resized, as GNOME's does.
///
/// After each change the window gets another height, one or two pixels more than Qt gave it. What
/// comes to it there is transparent, and Qt does not hear of it.
class XWaylandShape final : public QAbstractNativeEventFilter {
public:
    /// The native window of `window` exists and outlives this.
    explicit XWaylandShape(const QWindow& window);

    /// `outline` is in points of `scale` pixels.
    void update(const Path& outline, double scale);

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    int height() const;

    X11Connection x11_;
    const QWindow& qtWindow_;
    xcb_window_t window_;
    X11Shape shape_;
    int extra_ = 0; ///< pixels of height
};

} // namespace brellowind::platform
