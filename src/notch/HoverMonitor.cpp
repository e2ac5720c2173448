// SPDX-License-Identifier: MIT

#include "notch/HoverMonitor.h"

#include "notch/NotchScreens.h"

namespace brellowind {
namespace {

constexpr double margin = 8;

} // namespace

Rect hoverRectangle(const Rect& screenFrame, Size contentSize) {
    const double width = contentSize.width + 2 * margin;
    const double height = contentSize.height + margin;
    return {screenFrame.midX() - width / 2, screenFrame.maxY() - height, width, height};
}

void HoverMonitor::start() {
    stop();
    monitor_ = pointer_.addMonitor([weakSelf = weak_from_this()] {
        if (const auto self = weakSelf.lock())
            self->evaluate();
    });
    evaluate();
}

void HoverMonitor::stop() {
    monitor_.cancel();
}

void HoverMonitor::evaluate() {
    const auto screen = pillScreen(screens_);
    if (!screen)
        return;
    const auto location = pointer_.location();
    const bool inside = location && hoverRectangle(screen->frame, currentSize).contains(*location);
    if (inside == isInside.get() || (inside && pointer_.isButtonHeld()))
        return;
    isInside.set(inside);
}

} // namespace brellowind
