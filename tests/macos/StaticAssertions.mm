// SPDX-License-Identifier: MIT

// What the program takes for granted of Apple's declarations. It is compiled against the
// declarations in include/ by scripts/check-macos, and against Apple's own on a Mac: so the first
// build there finds what is declared wrongly here.
#import <AppKit/AppKit.h>
#import <CoreGraphics/CoreGraphics.h>
#import <CoreServices/CoreServices.h>
#import <Foundation/Foundation.h>
#import <ServiceManagement/ServiceManagement.h>

#include <concepts>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace {

template <typename Declared, typename Expected>
constexpr bool is = std::same_as<std::remove_cvref_t<Declared>, Expected>;

// Constants
static_assert(NSApplicationActivationPolicyAccessory == 1);
static_assert(NSWindowStyleMaskBorderless == 0);
static_assert(NSWindowStyleMaskNonactivatingPanel == 128);
static_assert(NSWindowCollectionBehaviorCanJoinAllSpaces == 1);
static_assert(NSWindowCollectionBehaviorStationary == 16);
static_assert(NSWindowCollectionBehaviorIgnoresCycle == 64);
static_assert(NSWindowCollectionBehaviorFullScreenAuxiliary == 256);
static_assert(NSWindowAnimationBehaviorNone == 2);
static_assert(NSEventMaskMouseMoved == 32);
static_assert(NSUTF8StringEncoding == 4);
static_assert(NSISOLatin1StringEncoding == 5);
static_assert(kCoreEventClass == 0x61657674);
static_assert(kAEReopenApplication == 0x72617070);
static_assert(SMAppServiceStatusNotRegistered == 0);
static_assert(SMAppServiceStatusEnabled == 1);
static_assert(SMAppServiceStatusRequiresApproval == 2);
static_assert(SMAppServiceStatusNotFound == 3);

// Types
static_assert(is<CGFloat, double>);
static_assert(is<NSInteger, long>);
static_assert(is<NSRect, CGRect>);
static_assert(sizeof(NSRect) == 32);
static_assert(is<CGWindowLevel, std::int32_t>);
static_assert(is<decltype(CGShieldingWindowLevel()), CGWindowLevel>);
static_assert(is<decltype(CGSessionCopyCurrentDictionary()), CFDictionaryRef>);
static_assert(is<NSWindowLevel, NSInteger>);
static_assert(is<std::underlying_type_t<SMAppServiceStatus>, NSInteger>);
static_assert(is<std::underlying_type_t<NSApplicationActivationPolicy>, NSInteger>);
static_assert(is<AEEventClass, std::uint32_t>);
static_assert(is<AEEventID, std::uint32_t>);

// Properties
static_assert(is<decltype(NSEvent.mouseLocation), NSPoint>);
static_assert(is<decltype(NSEvent.pressedMouseButtons), NSUInteger>);
static_assert(is<decltype(std::declval<NSScreen*>().frame), NSRect>);
static_assert(is<decltype(std::declval<NSScreen*>().visibleFrame), NSRect>);
static_assert(is<decltype(std::declval<NSScreen*>().safeAreaInsets), NSEdgeInsets>);
static_assert(is<decltype(std::declval<NSScreen*>().safeAreaInsets.top), CGFloat>);
static_assert(is<decltype(std::declval<NSScreen*>().auxiliaryTopLeftArea), NSRect>);
static_assert(is<decltype(std::declval<NSScreen*>().auxiliaryTopRightArea), NSRect>);
static_assert(is<decltype(std::declval<NSWindow*>().level), NSWindowLevel>);
static_assert(is<decltype(std::declval<NSWindow*>().styleMask), NSWindowStyleMask>);
static_assert(
    is<decltype(std::declval<NSWindow*>().collectionBehavior), NSWindowCollectionBehavior>);
static_assert(is<decltype(std::declval<NSWindow*>().animationBehavior), NSWindowAnimationBehavior>);
static_assert(is<decltype(std::declval<NSWindow*>().hidesOnDeactivate), BOOL>);
static_assert(is<decltype(std::declval<NSWindow*>().canHide), BOOL>);
static_assert(is<decltype(std::declval<NSWindow*>().hasShadow), BOOL>);
static_assert(is<decltype(std::declval<NSWindow*>().isMovable), BOOL>);
static_assert(is<decltype(std::declval<NSWindow*>().ignoresMouseEvents), BOOL>);
static_assert(is<decltype(std::declval<NSWindow*>().acceptsMouseMovedEvents), BOOL>);
static_assert(is<decltype(std::declval<NSRunningApplication*>().processIdentifier), pid_t>);
static_assert(is<decltype(std::declval<NSNumber*>().integerValue), NSInteger>);
static_assert(is<decltype(std::declval<NSData*>().length), NSUInteger>);
static_assert(is<decltype(std::declval<SMAppService*>().status), SMAppServiceStatus>);

// Selectors: each must be declared by something.
[[maybe_unused]] const SEL selectors[] = {
    @selector(activateIgnoringOtherApps:),
    @selector(addGlobalMonitorForEventsMatchingMask:handler:),
    @selector(addLocalMonitorForEventsMatchingMask:handler:),
    @selector(addObserver:selector:name:object:),
    @selector(addObserverForName:object:queue:usingBlock:),
    @selector(dataUsingEncoding:allowLossyConversion:),
    @selector(executeAndReturnError:),
    @selector(initWithBytes:length:encoding:),
    @selector(initWithSource:),
    @selector(openURL:),
    @selector(orderFrontRegardless),
    @selector(registerAndReturnError:),
    @selector(removeEventHandlerForEventClass:andEventID:),
    @selector(removeMonitor:),
    @selector(removeObserver:),
    @selector(runningApplicationsWithBundleIdentifier:),
    @selector(setActivationPolicy:),
    @selector(setEventHandler:andSelector:forEventClass:andEventID:),
    @selector(setFrame:display:),
    @selector(unregisterAndReturnError:),
};

} // namespace
