// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MainLoop.h"
#include "platform/linux/wayland/WaylandCompositor.h"

#include <memory>
#include <string>

namespace brellowind::platform {

/// Raises the program's windows with xdg-activation tokens, which stand for user actions.
class WaylandActivation {
public:
    WaylandActivation(const WaylandCompositor& compositor, MainLoop& mainLoop);
    WaylandActivation(const WaylandActivation&) = delete;
    WaylandActivation& operator=(const WaylandActivation&) = delete;

    /// Activates the windows with the adopted token, or with a new one for the last input to
    /// `surface` or its popup. Compositors refuse a new token if neither has the keyboard focus.
    void activate(wl_surface* surface);

    /// The next `activate` uses `token` if it is not empty.
    void adopt(const std::string& token) { token_ = token; }

private:
    static void tokenDone(void* self, xdg_activation_token_v1* request, const char* token);
    void activateWindows();

    const WaylandCompositor& compositor_;
    std::string token_;
    WaylandObject<xdg_activation_token_v1> request_; ///< while pending
    std::unique_ptr<NextTurn> activation_;
};

} // namespace brellowind::platform
