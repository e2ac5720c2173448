// SPDX-License-Identifier: MIT

#include "support/FakePointer.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace brellowind::test {

struct FakePointer::Monitor {
    Monitor(FakePointer& pointer_, Handler handler_)
        : pointer(pointer_), handler(std::move(handler_)) {
        pointer.monitors_.push_back(this);
    }
    Monitor(const Monitor&) = delete;
    Monitor& operator=(const Monitor&) = delete;
    ~Monitor() { pointer.monitors_.remove(this); }

    FakePointer& pointer;
    Handler handler;
};

Subscription FakePointer::addMonitor(Handler handler) {
    if (refusesMonitors)
        return {};
    handlers.push_back(handler);
    auto monitor = std::make_shared<Monitor>(*this, std::move(handler));
    mostMonitorsAtOnce = std::max(mostMonitorsAtOnce, monitorCount());
    return Subscription(std::move(monitor));
}

void FakePointer::move(std::optional<Point> to) {
    position = to;
    std::vector<Handler> installed; // a handler may remove any monitor
    for (const auto* monitor : monitors_)
        installed.push_back(monitor->handler);
    for (const auto& handler : installed)
        handler();
}

} // namespace brellowind::test
