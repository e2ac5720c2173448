// SPDX-License-Identifier: MIT

#include "platform/macos/appkit/Program.h"

#import <AppKit/AppKit.h>
#import <CoreGraphics/CoreGraphics.h>

#include <cstdlib>

namespace brellowind::platform::Program {

bool hasWindowServer() {
    const CFDictionaryRef session = CGSessionCopyCurrentDictionary();
    if (session == nullptr)
        return false;
    CFRelease(session);
    return true;
}

void becomeAccessory() {
    if (NSApp == nil)
        std::abort();
    [NSApp setActivationPolicy:NSApplicationActivationPolicyAccessory];
}

void activate() {
    [NSApp activateIgnoringOtherApps:YES];
}

} // namespace brellowind::platform::Program
