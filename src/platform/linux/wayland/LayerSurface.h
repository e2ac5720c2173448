// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/wayland/WaylandCompositor.h"

#include <QSize>
#include <functional>

namespace brellowind::platform {

/// Gives a surface without a role the role of a layer surface in the overlay layer, at the middle
/// of an output's top edge, ignoring exclusive zones and without keyboard interactivity. State
/// changes take effect with the surface's next commit. Must be destroyed before the surface.
class LayerSurface {
public:
    /// Handlers may destroy this object.
    struct Handlers {
        std::function<void()> configured; ///< after the first call the surface may have content
        std::function<void()> closed;     ///< closed by the compositor
    };

    /// `size` is in points. Commits the surface, which must not have a buffer.
    LayerSurface(const WaylandCompositor& compositor, wl_surface* surface, wl_output* output,
                 QSize size, Handlers handlers);
    LayerSurface(const LayerSurface&) = delete;
    LayerSurface& operator=(const LayerSurface&) = delete;

    void setSize(QSize size);

    /// Requests exclusive keyboard focus, or none. Commits the surface.
    void setKeyboardExclusive(bool exclusive);

    /// Makes this surface the parent of `popup`.
    void adoptPopup(xdg_popup* popup);

private:
    static void configure(void* self, zwlr_layer_surface_v1* surface, std::uint32_t serial,
                          std::uint32_t width, std::uint32_t height);
    static void close(void* self, zwlr_layer_surface_v1* surface);

    wl_surface* surface_;
    WaylandObject<zwlr_layer_surface_v1> layerSurface_;
    Handlers handlers_;
};

} // namespace brellowind::platform
