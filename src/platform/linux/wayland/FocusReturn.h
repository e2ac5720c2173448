// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/wayland/LayerSurface.h"

#include <optional>

namespace brellowind::platform {

/// Returns the keyboard focus to the previously active window, on compositors that give it to a
/// clicked layer surface that does not request it. Maps an invisible layer surface of one point
/// with the keyboard and destroys it: the compositor then activates the previous window.
class FocusReturn {
public:
    explicit FocusReturn(const WaylandCompositor& compositor) : compositor_(compositor) {}

    /// `output` is that of the surface with the keyboard.
    void start(wl_output* output);

private:
    void takeAndGo();

    const WaylandCompositor& compositor_;
    WaylandObject<wl_surface> surface_;
    std::optional<LayerSurface> layerSurface_;
};

} // namespace brellowind::platform
