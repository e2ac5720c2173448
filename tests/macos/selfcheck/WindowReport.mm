// SPDX-License-Identifier: MIT

#include "WindowReport.h"

#import <AppKit/AppKit.h>
#import <CoreGraphics/CoreGraphics.h>
#include <cmath>

namespace brellowind::selfcheck {
namespace {

NSWindow* windowOf(std::uintptr_t view) {
    return ((__bridge NSView*)reinterpret_cast<void*>(view)).window;
}

std::string text(NSString* string) {
    const char* bytes = string.UTF8String;
    return bytes ? bytes : "";
}

/// Where it hangs: in the middle of the top edge of the screen that it is on.
bool hangsFromTheTop(NSWindow* window) {
    const NSRect frame = window.frame;
    const NSRect screen = window.screen.frame;
    constexpr double point = 1;
    return std::abs(NSMaxY(frame) - NSMaxY(screen)) < point &&
           std::abs(NSMidX(frame) - NSMidX(screen)) < point;
}

} // namespace

std::vector<std::string> complaintsAbout(std::uintptr_t view) {
    std::vector<std::string> complaints;
    const auto require = [&](bool held, NSString* complaint) {
        if (!held)
            complaints.push_back(text(complaint));
    };
    NSWindow* window = windowOf(view);
    if (!window)
        return {"the view has no window"};

    require([window isKindOfClass:[NSPanel class]],
            [NSString stringWithFormat:@"class: %@ is no panel", window.className]);
    const NSInteger level = NSInteger{CGShieldingWindowLevel()} + 1;
    require(window.level == level,
            [NSString stringWithFormat:@"level: %ld, not %ld", (long)window.level, (long)level]);
    require(window.styleMask == NSWindowStyleMaskNonactivatingPanel,
            [NSString stringWithFormat:@"style: %lu", (unsigned long)window.styleMask]);
    const NSWindowCollectionBehavior behavior =
        NSWindowCollectionBehaviorCanJoinAllSpaces | NSWindowCollectionBehaviorStationary |
        NSWindowCollectionBehaviorIgnoresCycle | NSWindowCollectionBehaviorFullScreenAuxiliary;
    require(window.collectionBehavior == behavior,
            [NSString stringWithFormat:@"behaviour: %lu, not %lu",
                                       (unsigned long)window.collectionBehavior,
                                       (unsigned long)behavior]);
    require(hangsFromTheTop(window),
            [NSString stringWithFormat:@"frame: %@ on the screen %@",
                                       NSStringFromRect(window.frame),
                                       NSStringFromRect(window.screen.frame)]);
    require(window.visible, @"it is not visible");
    require(window.ignoresMouseEvents, @"it takes clicks while the pointer is elsewhere");
    require(!window.opaque, @"it is opaque");
    require(!window.hasShadow, @"it has a shadow");
    require(!window.hidesOnDeactivate, @"it hides when another application is active");
    require(!window.canHide, @"it can be hidden");
    require(!window.movable, @"it can be moved");
    require(!window.canBecomeKeyWindow, @"it can take the keyboard");
    require(!window.canBecomeMainWindow, @"it can become the main window");
    require(!NSApp.active, @"the program is active");
    require(NSApp.activationPolicy == NSApplicationActivationPolicyAccessory,
            @"the program is no accessory");
    return complaints;
}

long windowNumber(std::uintptr_t view) {
    return windowOf(view).windowNumber;
}

void movePointer(double x, double y) {
    CGWarpMouseCursorPosition(CGPointMake(x, y));
}

} // namespace brellowind::selfcheck
