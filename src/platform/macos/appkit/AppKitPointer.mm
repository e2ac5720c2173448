// SPDX-License-Identifier: MIT

#include "platform/macos/appkit/AppKitPointer.h"

#import <AppKit/AppKit.h>

#include <utility>

namespace brellowind::platform {
namespace {

/// AppKit tells the upper edge of the pixel that the pointer is on, which at the top of a screen
/// lies outside it.
constexpr double belowTheEdge = 1.0 / 64;

/// The system holds the handler until the monitor is removed.
class EventMonitor final : public PointerMonitor {
public:
    explicit EventMonitor(id token) : token_(token) {}
    EventMonitor(const EventMonitor&) = delete;
    EventMonitor& operator=(const EventMonitor&) = delete;
    ~EventMonitor() override { [NSEvent removeMonitor:token_]; }

private:
    id token_;
};

std::unique_ptr<PointerMonitor> monitor(id _Nullable token) {
    return token != nil ? std::make_unique<EventMonitor>(token) : nullptr;
}

using SharedHandler = std::shared_ptr<const Pointer::Handler>;

SharedHandler shared(Pointer::Handler handler) {
    return std::make_shared<const Pointer::Handler>(std::move(handler));
}

/// Keeps the handler while it runs, since it may destroy the monitor.
void run(SharedHandler handler) {
    (*handler)();
}

} // namespace

std::optional<Point> AppKitPointer::location() {
    const NSPoint location = NSEvent.mouseLocation;
    return Point{location.x, location.y - belowTheEdge};
}

bool AppKitPointer::isButtonHeld() {
    return NSEvent.pressedMouseButtons != 0;
}

std::unique_ptr<PointerMonitor> AppKitPointer::addGlobalMonitor(Handler handler) {
    auto kept = shared(std::move(handler));
    id token = [NSEvent addGlobalMonitorForEventsMatchingMask:NSEventMaskMouseMoved
                                                      handler:^(NSEvent*) {
                                                        run(kept);
                                                      }];
    return monitor(token);
}

std::unique_ptr<PointerMonitor> AppKitPointer::addLocalMonitor(Handler handler) {
    auto kept = shared(std::move(handler));
    id token = [NSEvent addLocalMonitorForEventsMatchingMask:NSEventMaskMouseMoved
                                                     handler:^NSEvent*(NSEvent* event) {
                                                       run(kept);
                                                       return event;
                                                     }];
    return monitor(token);
}

} // namespace brellowind::platform
