// SPDX-License-Identifier: MIT

#include "platform/linux/x11/PlainX11Shape.h"

#include "platform/qt/OutlineRegion.h"

#include <optional>
#include <utility>

namespace brellowind::platform {

PlainX11Shape::PlainX11Shape(const QWindow& window, std::function<void()> changed)
    : compositingManager_(x11_, std::move(changed)),
      shape_(x11_, static_cast<xcb_window_t>(window.winId())) {}

void PlainX11Shape::update(const Path& outline, const std::vector<Rect>& inputRects, double scale,
                           bool ignoresMouseEvents) {
    const bool isBounded = !compositingManager_.isRunning();
    const QRegion region =
        isBounded || !ignoresMouseEvents ? outlineRegion(outline, scale) : QRegion();
    shape_.setBounding(isBounded ? std::optional(region) : std::nullopt);
    shape_.setInput(ignoresMouseEvents ? QRegion()
                    : isBounded        ? region
                                       : region | rectsRegion(inputRects, scale));
}

} // namespace brellowind::platform
