// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/x11/CompositingManager.h"
#include "platform/linux/x11/OverlayShape.h"
#include "platform/linux/x11/X11Shape.h"

#include <QWindow>

namespace brellowind::platform {

/// The shape on a real X server. Without a compositing manager the window is bounded by the
/// outline, since the rest would be black.
class PlainX11Shape final : public OverlayShape {
public:
    /// Calls `changed` when a compositing manager starts or stops.
    PlainX11Shape(const QWindow& window, std::function<void()> changed);

    void update(const Path& outline, const std::vector<Rect>& inputRects, double scale,
                bool ignoresMouseEvents) override;

private:
    X11Connection x11_;
    CompositingManager compositingManager_;
    X11Shape shape_;
};

} // namespace brellowind::platform
