#pragma once

#include "platform/MainLoop.h"
#include "platform/linux/wayland/WaylandCompositor.h"

#include <memory>
#include <string>

namespace brellowind::platform {

/// Brings the program's windows to the front, for which a compositor wants a token that stands for
/// an action of the user.
class WaylandActivation {
public:
    WaylandActivation(const WaylandCompositor& compositor, MainLoop& mainLoop);
    WaylandActivation(const WaylandActivation&) = delete;
    WaylandActivation& operator=(const WaylandActivation&) = delete;

    /// Activates the windows in the name of the last input, which came to `surface` or a popup of
    /// it, or of the token that was adopted. Compositors refuse a token if neither has the keyboard
    /// any more.
    void activate(wl_surface* surface);

    /// The next `activate` uses `token`, unless it is empty.
    void adopt(const std::string& token) { token_ = token; }

private:
    static void tokenDone(void* self, xdg_activation_token_v1* request, const char* token);
    void activateWindows();

    const WaylandCompositor& compositor_;
    std::string token_;
    WaylandObject<xdg_activation_token_v1> request_; ///< while it is not answered
    std::unique_ptr<NextTurn> activation_;
};

} // namespace brellowind::platform
