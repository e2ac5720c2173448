// SPDX-License-Identifier: MIT

#include "support/FakePointer.h"

#include <algorithm>
#include <utility>

namespace brellowind::test {

class FakePointer::Monitor final : public platform::PointerMonitor {
public:
    Monitor(Monitors& monitors, Handler handler_)
        : handler(std::move(handler_)), monitors_(monitors) {
        monitors_.push_back(this);
    }

    ~Monitor() override { monitors_.remove(this); }

    Handler handler;

private:
    Monitors& monitors_;
};

std::unique_ptr<platform::PointerMonitor> FakePointer::addGlobalMonitor(Handler handler) {
    if (refusesGlobalMonitors)
        return nullptr;
    return add(global_, std::move(handler));
}

std::unique_ptr<platform::PointerMonitor> FakePointer::addLocalMonitor(Handler handler) {
    if (refusesLocalMonitors)
        return nullptr;
    return add(local_, std::move(handler));
}

void FakePointer::moveOutsideWindows(std::optional<Point> to) {
    position = to;
    notify(global_);
}

void FakePointer::moveOverWindow(std::optional<Point> to) {
    position = to;
    notify(local_);
}

std::unique_ptr<platform::PointerMonitor> FakePointer::add(Monitors& monitors, Handler handler) {
    handlers.push_back(handler);
    auto monitor = std::make_unique<Monitor>(monitors, std::move(handler));
    mostMonitorsAtOnce = std::max(mostMonitorsAtOnce, global_.size() + local_.size());
    return monitor;
}

void FakePointer::notify(const Monitors& monitors) {
    std::vector<Handler> installed; // a handler may remove any monitor
    for (const auto* monitor : monitors)
        installed.push_back(monitor->handler);
    for (const auto& handler : installed)
        handler();
}

} // namespace brellowind::test
