// SPDX-License-Identifier: MIT

#include "platform/macos/appkit/AppKitScreens.h"

#import <AppKit/AppKit.h>

#include <utility>

namespace brellowind::platform {
namespace {

Rect plainRect(NSRect rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

std::optional<Rect> area(NSRect rect) {
    return NSIsEmptyRect(rect) ? std::nullopt : std::optional(plainRect(rect));
}

Screen description(NSScreen* screen) {
    return {.frame = plainRect(screen.frame),
            .visibleFrame = plainRect(screen.visibleFrame),
            .topSafeAreaInset = screen.safeAreaInsets.top,
            .auxiliaryTopLeftArea = area(screen.auxiliaryTopLeftArea),
            .auxiliaryTopRightArea = area(screen.auxiliaryTopRightArea)};
}

} // namespace

struct AppKitScreens::Observation {
    id<NSObject> token;
};

AppKitScreens::AppKitScreens() {
    auto observers = observers_;
    id<NSObject> token = [NSNotificationCenter.defaultCenter
        addObserverForName:NSApplicationDidChangeScreenParametersNotification
                    object:nil
                     queue:nil
                usingBlock:^(NSNotification*) {
                  observers->notify();
                }];
    observation_ = std::make_unique<Observation>(Observation{token});
}

AppKitScreens::~AppKitScreens() {
    [NSNotificationCenter.defaultCenter removeObserver:observation_->token];
}

std::vector<Screen> AppKitScreens::screens() {
    std::vector<Screen> all;
    for (NSScreen* screen in NSScreen.screens)
        all.push_back(description(screen));
    return all;
}

std::optional<Screen> AppKitScreens::main() {
    NSScreen* screen = NSScreen.mainScreen;
    return screen != nil ? std::optional(description(screen)) : std::nullopt;
}

Subscription AppKitScreens::onChange(Observers::Callback callback) {
    return observers_->add(std::move(callback));
}

} // namespace brellowind::platform
