// SPDX-License-Identifier: MIT

#include "platform/macos/appkit/AppleScripts.h"

#import <AppKit/AppKit.h>

#include "platform/macos/appkit/Text.h"

namespace brellowind::platform {
namespace {

ScriptHost::Failure failure(NSDictionary<NSString*, id>* information) {
    NSNumber* number = information[NSAppleScriptErrorNumber];
    return {.number = number.integerValue, .description = plainText(information.description)};
}

} // namespace

bool AppleScripts::isRunning(std::string_view bundleIdentifier) {
    NSString* wanted = nativeText(bundleIdentifier);
    for (NSRunningApplication* application in NSWorkspace.sharedWorkspace.runningApplications) {
        NSString* identifier = application.bundleIdentifier;
        if (identifier != nil && [identifier isEqualToString:wanted])
            return true;
    }
    return false;
}

ScriptHost::Outcome AppleScripts::run(std::string_view source) {
    NSAppleScript* script = [[NSAppleScript alloc] initWithSource:nativeText(source)];
    if (script == nil)
        return {};
    NSDictionary<NSString*, id>* information = nil;
    NSAppleEventDescriptor* result = [script executeAndReturnError:&information];
    if (information != nil)
        return {.text = std::nullopt, .failure = failure(information)};
    NSString* text = result.stringValue;
    if (text == nil)
        return {};
    return {.text = plainText(text), .failure = std::nullopt};
}

} // namespace brellowind::platform
