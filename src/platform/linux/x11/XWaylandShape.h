#pragma once

#include "foundation/Path.h"
#include "platform/linux/x11/X11Shape.h"

#include <QAbstractNativeEventFilter>
#include <QWindow>

namespace brellowind::platform {

/// Lets a window take the pointer within an outline under GNOME's compositor, which looks at the
/// input shape of a window when its size changes, and forgets it when the window shows something
/// else at the same size.
///
/// So in every frame the window has another height: one or two pixels more than Qt gave it, which
/// are transparent and of which Qt does not hear.
class XWaylandShape final : public QAbstractNativeEventFilter {
public:
    /// The native window of `window` exists and outlives this.
    explicit XWaylandShape(const QWindow& window);

    /// `outline` is in points of `scale` pixels.
    void update(const Path& outline, double scale);

    /// Before the window shows something else.
    void beginFrame();

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
