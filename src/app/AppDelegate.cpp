#include "app/AppDelegate.h"

#include "views/NotchQuickView.h"
#include "views/NotchRootView.h"

namespace brellowind {

AppDelegate::AppDelegate() : rootView_(std::make_unique<NotchRootView>()) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
    notchWindow_ = std::make_unique<NotchQuickView>(*rootView_);
    notchWindow_->show();
    rootView_->appear();
}

QQuickWindow& AppDelegate::window() {
    return *notchWindow_;
}

} // namespace brellowind
