// SPDX-License-Identifier: MIT

#include "platform/macos/appkit/AppKitPointer.h"

#import <AppKit/AppKit.h>

#include <memory>
#include <utility>

namespace brellowind::platform {
namespace {

/// AppKit tells the upper edge of the pixel that the pointer is on, which at the top of a screen
/// lies outside it.
constexpr double belowTheEdge = 1.0 / 64;

using SharedHandler = std::shared_ptr<const Pointer::Handler>;

/// Keeps the handler while it runs, since it may destroy the monitor.
void run(SharedHandler handler) {
    (*handler)();
}

/// AppKit has one monitor for movements over this program's windows and one for all others. The
/// system holds the handler until both are removed.
class EventMonitor {
public:
    explicit EventMonitor(Pointer::Handler handler) {
        const SharedHandler kept = std::make_shared<const Pointer::Handler>(std::move(handler));
        global_ = [NSEvent addGlobalMonitorForEventsMatchingMask:NSEventMaskMouseMoved
                                                         handler:^(NSEvent*) {
                                                           run(kept);
                                                         }];
        local_ = [NSEvent addLocalMonitorForEventsMatchingMask:NSEventMaskMouseMoved
                                                       handler:^NSEvent*(NSEvent* event) {
                                                         run(kept);
                                                         return event;
                                                       }];
    }
    EventMonitor(const EventMonitor&) = delete;
    EventMonitor& operator=(const EventMonitor&) = delete;
    ~EventMonitor() {
        for (id token : {global_, local_}) {
            if (token != nil)
                [NSEvent removeMonitor:token];
        }
    }

private:
    id global_; ///< nil if the system refuses
    id local_;  ///< nil if the system refuses
};

} // namespace

std::optional<Point> AppKitPointer::location() {
    const NSPoint location = NSEvent.mouseLocation;
    return Point{location.x, location.y - belowTheEdge};
}

bool AppKitPointer::isButtonHeld() {
    return NSEvent.pressedMouseButtons != 0;
}

Subscription AppKitPointer::addMonitor(Handler handler) {
    return Subscription(std::make_shared<EventMonitor>(std::move(handler)));
}

} // namespace brellowind::platform
