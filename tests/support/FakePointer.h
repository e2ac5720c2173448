// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Pointer.h"

#include <list>
#include <vector>

namespace brellowind::test {

/// A pointer that is moved by the test.
class FakePointer final : public platform::Pointer {
public:
    std::optional<Point> location() override {
        ++locationReadings;
        return position;
    }

    bool isButtonHeld() override { return buttonHeld; }

    std::unique_ptr<platform::PointerMonitor> addGlobalMonitor(Handler handler) override;
    std::unique_ptr<platform::PointerMonitor> addLocalMonitor(Handler handler) override;

    /// Moves the pointer over the desktop or another program: notifies the global monitors.
    void moveOutsideWindows(std::optional<Point> to);

    /// Moves the pointer over a window of this program: notifies the local monitors.
    void moveOverWindow(std::optional<Point> to);

    std::size_t globalMonitorCount() const { return global_.size(); }
    std::size_t localMonitorCount() const { return local_.size(); }

    std::optional<Point> position;
    bool buttonHeld = false;
    bool refusesGlobalMonitors = false;
    bool refusesLocalMonitors = false;
    int locationReadings = 0;
    std::size_t mostMonitorsAtOnce = 0; ///< global and local ones together

    /// All handlers ever installed, also those of destroyed monitors.
    std::vector<Handler> handlers;

private:
    class Monitor;
    using Monitors = std::list<Monitor*>;

    std::unique_ptr<platform::PointerMonitor> add(Monitors& monitors, Handler handler);
    static void notify(const Monitors& monitors);

    Monitors global_;
    Monitors local_;
};

} // namespace brellowind::test
