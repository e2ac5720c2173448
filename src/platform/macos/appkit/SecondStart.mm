// SPDX-License-Identifier: MIT

#include "platform/macos/appkit/SecondStart.h"

#import <AppKit/AppKit.h>
#import <CoreServices/CoreServices.h>

#include <utility>

/// Receives the event by which the system tells of another start.
@interface BrellowindReopening : NSObject
- (instancetype)initWithHandler:(std::function<void()>)handler;
- (void)listen;
- (void)launched:(NSNotification*)notification;
- (void)reopen:(NSAppleEventDescriptor*)event reply:(NSAppleEventDescriptor*)reply;
@end

@implementation BrellowindReopening {
    std::function<void()> _handler;
}

- (instancetype)initWithHandler:(std::function<void()>)handler {
    self = [super init];
    if (self != nil)
        _handler = std::move(handler);
    return self;
}

- (void)listen {
    [NSAppleEventManager.sharedAppleEventManager setEventHandler:self
                                                     andSelector:@selector(reopen:reply:)
                                                   forEventClass:kCoreEventClass
                                                      andEventID:kAEReopenApplication];
}

/// AppKit puts a handler of its own in the place of an earlier one.
- (void)launched:(NSNotification*)__unused notification {
    [self listen];
}

- (void)reopen:(NSAppleEventDescriptor*)__unused event
         reply:(NSAppleEventDescriptor*)__unused reply {
    _handler();
}

@end

namespace brellowind::platform {

struct SecondStart::Observation {
    BrellowindReopening* reopening; ///< nobody else keeps it
};

SecondStart::SecondStart(std::function<void()> onSecondStart) {
    BrellowindReopening* reopening =
        [[BrellowindReopening alloc] initWithHandler:std::move(onSecondStart)];
    [reopening listen];
    [NSNotificationCenter.defaultCenter addObserver:reopening
                                           selector:@selector(launched:)
                                               name:NSApplicationDidFinishLaunchingNotification
                                             object:nil];
    observation_ = std::make_unique<Observation>(Observation{reopening});
}

SecondStart::~SecondStart() {
    [NSNotificationCenter.defaultCenter removeObserver:observation_->reopening];
    [NSAppleEventManager.sharedAppleEventManager
        removeEventHandlerForEventClass:kCoreEventClass
                             andEventID:kAEReopenApplication];
}

bool SecondStart::tellOther() {
    NSString* identifier = NSBundle.mainBundle.bundleIdentifier;
    if (identifier == nil)
        return false; // started without a bundle, as while developing
    const pid_t own = NSRunningApplication.currentApplication.processIdentifier;
    for (NSRunningApplication* other in
         [NSRunningApplication runningApplicationsWithBundleIdentifier:identifier]) {
        NSURL* bundle = other.bundleURL;
        if (other.processIdentifier != own && bundle != nil)
            return [NSWorkspace.sharedWorkspace openURL:bundle];
    }
    return false;
}

} // namespace brellowind::platform
