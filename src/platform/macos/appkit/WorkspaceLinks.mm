// SPDX-License-Identifier: MIT

#include "platform/macos/appkit/WorkspaceLinks.h"

#import <AppKit/AppKit.h>

#include "platform/macos/appkit/Text.h"

namespace brellowind::platform {

bool WorkspaceLinks::open(std::string_view url) {
    NSURL* address = [NSURL URLWithString:nativeText(url)];
    return address != nil && [NSWorkspace.sharedWorkspace openURL:address];
}

} // namespace brellowind::platform
