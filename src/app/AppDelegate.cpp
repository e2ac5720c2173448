#include "app/AppDelegate.h"

#include "platform/Services.h"
#include "views/NotchRootView.h"

#include <utility>

namespace brellowind {

using platform::services;

AppDelegate::Notch::Notch(NotchRootView& rootView, platform::ScreenLock& screenLock)
    : content(rootView, frames), overlay(content, services().mainLoop, screenLock),
      window(overlay) {
    QObject::connect(&content, &NotchView::outlineChanged, &overlay,
                     &platform::X11OverlayWindow::setContentOutline);
}

AppDelegate::AppDelegate(platform::ScreenLock& screenLock, std::function<void()> openSettings)
    : screenLock_(screenLock),
      rootView_(NotchRootView::create({.window = [this]() -> platform::OverlayWindow* {
                                           return notch_ ? &notch_->overlay : nullptr;
                                       },
                                       .openSettings = std::move(openSettings)})) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
    notch_.emplace(*rootView_, screenLock_);
    notch_->window.show();
    rootView_->appear();
    screenChange_ = services().screens.onChange([this] { screenParametersChanged(); });
}

void AppDelegate::screenParametersChanged() {
    if (notch_)
        notch_->window.repositionToNotch();
}

} // namespace brellowind
