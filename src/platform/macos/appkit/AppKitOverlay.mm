// SPDX-License-Identifier: MIT

#include "platform/macos/appkit/AppKitOverlay.h"

#import <AppKit/AppKit.h>
#import <CoreGraphics/CoreGraphics.h>

namespace brellowind::platform {
namespace {

constexpr NSWindowStyleMask style =
    NSWindowStyleMaskBorderless | NSWindowStyleMaskNonactivatingPanel;

constexpr NSWindowCollectionBehavior behavior =
    NSWindowCollectionBehaviorCanJoinAllSpaces | NSWindowCollectionBehaviorStationary |
    NSWindowCollectionBehaviorIgnoresCycle | NSWindowCollectionBehaviorFullScreenAuxiliary;

/// Above the menu bar and every ordinary window. A level has 32 bits, so nothing overflows.
NSWindowLevel overlayLevel() {
    return NSWindowLevel{CGShieldingWindowLevel()} + 1;
}

class AppKitOverlay final : public NativeOverlay {
public:
    explicit AppKitOverlay(NSWindow* window) : window_(window) {
        configure();
        window.ignoresMouseEvents = YES;
    }

    void setFrame(const Rect& frame) override {
        // At an ordinary level the system keeps a window below the menu bar.
        window_.level = overlayLevel();
        [window_ setFrame:NSMakeRect(frame.x, frame.y, frame.width, frame.height) display:YES];
    }

    void orderFrontRegardless() override {
        configure();
        [window_ orderFrontRegardless];
    }

    void setIgnoresMouseEvents(bool ignores) override {
        window_.ignoresMouseEvents = ignores ? YES : NO;
    }

private:
    /// Qt sets some of these in its own way.
    void configure() {
        NSWindow* window = window_;
        if (window.styleMask != style)
            window.styleMask = style; // which may rebuild what is around the view
        window.level = overlayLevel();
        window.collectionBehavior = behavior; // some bits exclude others, so all are replaced
        window.animationBehavior = NSWindowAnimationBehaviorNone;
        window.hidesOnDeactivate = NO;
        window.canHide = NO;
        window.hasShadow = NO;
        window.movable = NO;
        window.acceptsMouseMovedEvents = YES;
    }

    __weak NSWindow* window_; ///< Qt's
};

} // namespace

std::unique_ptr<NativeOverlay> makeAppKitOverlay(std::uintptr_t view) {
    NSView* content = (__bridge NSView*)reinterpret_cast<void*>(view);
    return std::make_unique<AppKitOverlay>(content.window);
}

} // namespace brellowind::platform
