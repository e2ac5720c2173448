// SPDX-License-Identifier: MIT

// Declarations of what the program uses of AppKit, written from the documentation.
#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyRegular,
    NSApplicationActivationPolicyAccessory,
    NSApplicationActivationPolicyProhibited,
};

extern "C" const NSNotificationName NSApplicationDidFinishLaunchingNotification;
extern "C" const NSNotificationName NSApplicationDidChangeScreenParametersNotification;

@interface NSApplication : NSObject
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy;
- (void)activateIgnoringOtherApps:(BOOL)ignoresOthers;
- (void)activate API_AVAILABLE_MACOS(14.0);
@end

extern "C" NSApplication* _Null_unspecified NSApp;

@interface NSRunningApplication : NSObject
@property(class, readonly) NSRunningApplication* currentApplication;
+ (NSArray<NSRunningApplication*>*)runningApplicationsWithBundleIdentifier:(NSString*)identifier;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@property(nullable, readonly, copy) NSURL* bundleURL;
@property(readonly) pid_t processIdentifier;
@end

@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace* sharedWorkspace;
@property(readonly, copy) NSArray<NSRunningApplication*>* runningApplications;
- (BOOL)openURL:(NSURL*)url;
@end

@interface NSScreen : NSObject
@property(class, readonly, copy) NSArray<NSScreen*>* screens;
@property(class, readonly, strong, nullable) NSScreen* mainScreen;
@property(readonly) NSRect frame;
@property(readonly) NSRect visibleFrame;
@property(readonly) NSEdgeInsets safeAreaInsets API_AVAILABLE_MACOS(12.0);
@property(readonly) NSRect auxiliaryTopLeftArea API_AVAILABLE_MACOS(12.0);
@property(readonly) NSRect auxiliaryTopRightArea API_AVAILABLE_MACOS(12.0);
@end

typedef NS_OPTIONS(unsigned long long, NSEventMask) {
    NSEventMaskMouseMoved = 1ULL << 5,
};

@interface NSEvent : NSObject
@property(class, readonly) NSPoint mouseLocation;
@property(class, readonly) NSUInteger pressedMouseButtons;
+ (nullable id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask
                                             handler:(void (^)(NSEvent* event))handler;
+ (nullable id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask
                                            handler:(NSEvent* _Nullable (^)(NSEvent* event))handler;
+ (void)removeMonitor:(id)token;
@end

typedef NS_OPTIONS(NSUInteger, NSWindowStyleMask) {
    NSWindowStyleMaskBorderless = 0,
    NSWindowStyleMaskNonactivatingPanel = 1 << 7,
};

typedef NS_OPTIONS(NSUInteger, NSWindowCollectionBehavior) {
    NSWindowCollectionBehaviorCanJoinAllSpaces = 1 << 0,
    NSWindowCollectionBehaviorStationary = 1 << 4,
    NSWindowCollectionBehaviorIgnoresCycle = 1 << 6,
    NSWindowCollectionBehaviorFullScreenAuxiliary = 1 << 8,
};

typedef NS_ENUM(NSInteger, NSWindowAnimationBehavior) {
    NSWindowAnimationBehaviorDefault = 0,
    NSWindowAnimationBehaviorNone = 2,
};

typedef NSInteger NSWindowLevel;

@interface NSWindow : NSObject
@property NSWindowStyleMask styleMask;
@property NSWindowLevel level;
@property NSWindowCollectionBehavior collectionBehavior;
@property NSWindowAnimationBehavior animationBehavior;
@property BOOL hidesOnDeactivate;
@property BOOL canHide;
@property BOOL hasShadow;
@property(getter=isMovable) BOOL movable;
@property BOOL ignoresMouseEvents;
@property BOOL acceptsMouseMovedEvents;
- (void)setFrame:(NSRect)frame display:(BOOL)display;
- (void)orderFrontRegardless;
@end

@interface NSView : NSObject
@property(nullable, readonly, unsafe_unretained) NSWindow* window;
@end

#pragma clang assume_nonnull end
