#include "notch/HoverMonitor.h"

#include "notch/NotchScreens.h"
#include "platform/Services.h"

namespace brellowind {
namespace {

constexpr double margin = 8;

} // namespace

using platform::services;

Rect hoverRectangle(const Rect& screenFrame, Size contentSize) {
    const double width = contentSize.width + 2 * margin;
    const double height = contentSize.height + margin;
    return {screenFrame.midX() - width / 2, screenFrame.maxY() - height, width, height};
}

std::shared_ptr<HoverMonitor> HoverMonitor::create() {
    return std::shared_ptr<HoverMonitor>(new HoverMonitor);
}

void HoverMonitor::start() {
    stop();
    auto& pointer = services().pointer;
    globalMonitor_ = pointer.addGlobalMonitor(evaluation());
    localMonitor_ = pointer.addLocalMonitor(evaluation());
    evaluate();
}

void HoverMonitor::stop() {
    globalMonitor_.reset();
    localMonitor_.reset();
}

platform::Pointer::Handler HoverMonitor::evaluation() {
    return [weakSelf = weak_from_this()] {
        if (const auto self = weakSelf.lock())
            self->evaluate();
    };
}

void HoverMonitor::evaluate() {
    const auto screen = pillScreen(services().screens);
    if (!screen)
        return;
    const auto location = services().pointer.location();
    const bool inside = location && hoverRectangle(screen->frame, currentSize).contains(*location);
    if (inside != isInside.get())
        isInside.set(inside);
}

} // namespace brellowind
