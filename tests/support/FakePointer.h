// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Pointer.h"

#include <cstddef>
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

    Subscription addMonitor(Handler handler) override;

    /// Moves the pointer and notifies the monitors.
    void move(std::optional<Point> to);

    std::size_t monitorCount() const { return monitors_.size(); }

    std::optional<Point> position;
    bool buttonHeld = false;
    bool refusesMonitors = false;
    int locationReadings = 0;
    std::size_t mostMonitorsAtOnce = 0;

    /// All handlers ever installed, also those of destroyed monitors.
    std::vector<Handler> handlers;

private:
    struct Monitor;

    std::list<const Monitor*> monitors_;
};

} // namespace brellowind::test
