#include "app/AppDelegate.h"

#include "platform/Services.h"
#include "views/NotchRootView.h"

#include <utility>

namespace brellowind {

using platform::services;

AppDelegate::Notch::Notch(std::shared_ptr<NotchRootView> rootView,
                          platform::WindowSystem& windowSystem)
    : content(std::move(rootView), windowSystem), window(content.overlay()) {}

AppDelegate::AppDelegate(platform::WindowSystem& windowSystem, std::function<void()> openSettings)
    : windowSystem_(windowSystem),
      rootView_(NotchRootView::create({.window = [this]() -> platform::Overlay* {
                                           return notch_ ? &notch_->content.overlay() : nullptr;
                                       },
                                       .openSettings = std::move(openSettings)})) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
    notch_.emplace(rootView_, windowSystem_);
    notch_->window.show();
    rootView_->appear();
    screenChange_ = services().screens.onChange([this] { screenParametersChanged(); });
}

void AppDelegate::screenParametersChanged() {
    if (notch_)
        notch_->window.repositionToNotch();
}

} // namespace brellowind
