#pragma once

#include "platform/linux/wayland/LayerSurface.h"

#include <optional>

namespace brellowind::platform {

/// Gives the keyboard back to the window that had it before a compositor gave it to a layer surface
/// that wants none, as some do when the surface is clicked. An invisible layer surface of one point
/// takes the keyboard and goes: then the window that was active before is activated.
class FocusReturn {
public:
    explicit FocusReturn(const WaylandCompositor& compositor) : compositor_(compositor) {}

    /// `output` shows the surface that has the keyboard.
    void start(wl_output* output);

private:
    void takeAndGo();

    const WaylandCompositor& compositor_;
    WaylandObject<wl_surface> surface_;
    std::optional<LayerSurface> layerSurface_;
};

} // namespace brellowind::platform
