// SPDX-License-Identifier: MIT

#include "platform/linux/wayland/WaylandActivation.h"

#include <QGuiApplication>
#include <QWindow>
#include <utility>

namespace brellowind::platform {

WaylandActivation::WaylandActivation(const WaylandCompositor& compositor, MainLoop& mainLoop)
    : compositor_(compositor), activation_(mainLoop.onNextTurn([this] { activateWindows(); })) {}

void WaylandActivation::activate(wl_surface* surface) {
    if (!compositor_.activation())
        return;
    if (!token_.empty()) {
        activation_->request(); // the window may be shown later in this turn
        return;
    }
    if (!surface)
        return;
    request_.reset(xdg_activation_v1_get_activation_token(compositor_.activation()));
    static constexpr xdg_activation_token_v1_listener listener{tokenDone};
    xdg_activation_token_v1_add_listener(request_.get(), &listener, this);
    if (auto* seat = compositor_.seat())
        xdg_activation_token_v1_set_serial(request_.get(), compositor_.serial(), seat);
    xdg_activation_token_v1_set_surface(request_.get(), surface);
    xdg_activation_token_v1_commit(request_.get());
}

void WaylandActivation::tokenDone(void* self, xdg_activation_token_v1* /*request*/,
                                  const char* token) {
    auto& activation = *static_cast<WaylandActivation*>(self);
    activation.request_.reset();
    activation.token_ = token;
    activation.activateWindows();
}

void WaylandActivation::activateWindows() {
    const std::string token = std::exchange(token_, {});
    for (auto* window : QGuiApplication::topLevelWindows()) {
        if (!window->isVisible() || window->flags().testFlag(Qt::BypassWindowManagerHint))
            continue;
        if (auto* surface = WaylandCompositor::surface(*window))
            xdg_activation_v1_activate(compositor_.activation(), token.c_str(), surface);
    }
}

} // namespace brellowind::platform
