// SPDX-License-Identifier: MIT

#include "app/AppDelegate.h"

#include <utility>

namespace brellowind {

AppDelegate::Notch::Notch(NotchRootView& rootView, platform::WindowSystem& windowSystem)
    : content(rootView, frames, windowSystem), window(content.overlay(), windowSystem.screens()) {}

AppDelegate::AppDelegate(platform::WindowSystem& windowSystem, NotchRootView::Environment content)
    : windowSystem_(windowSystem) {
    content.window = [this] { return notch_ ? &notch_->content.overlay() : nullptr; };
    rootView_ = std::make_shared<NotchRootView>(std::move(content));
}

void AppDelegate::applicationDidFinishLaunching() {
    notch_.emplace(*rootView_, windowSystem_);
    notch_->window.show();
    rootView_->appear();
    screenChange_ = windowSystem_.screens().onChange([this] { screenParametersChanged(); });
}

void AppDelegate::screenParametersChanged() {
    if (notch_)
        notch_->window.repositionToNotch();
}

} // namespace brellowind
