#include "platform/linux/wayland/WaylandPointer.h"

#include <utility>

namespace brellowind::platform {
namespace {

class WaylandPointerMonitor final : public PointerMonitor {
public:
    explicit WaylandPointerMonitor(Subscription subscription)
        : subscription_(std::move(subscription)) {}

private:
    Subscription subscription_;
};

} // namespace

std::unique_ptr<PointerMonitor> WaylandPointer::addGlobalMonitor(Handler /*handler*/) {
    return nullptr;
}

std::unique_ptr<PointerMonitor> WaylandPointer::addLocalMonitor(Handler handler) {
    return std::make_unique<WaylandPointerMonitor>(observers_->add(std::move(handler)));
}

void WaylandPointer::move(std::optional<Point> location) {
    location_ = location;
    observers_->notify();
}

} // namespace brellowind::platform
