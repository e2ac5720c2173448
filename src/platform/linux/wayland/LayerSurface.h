#pragma once

#include "platform/linux/wayland/WaylandCompositor.h"

#include <QSize>
#include <functional>

namespace brellowind::platform {

/// Makes a surface without a role a layer surface: above panels and full-screen windows, at the
/// middle of an output's top edge, moved by no panel and without the keyboard. Its state is applied
/// by the surface's next commit. Must be destroyed before the surface.
class LayerSurface {
public:
    /// They may destroy this.
    struct Handlers {
        std::function<void()> configured; ///< from the first time on the surface may have content
        std::function<void()> closed;     ///< it is not shown any more
    };

    /// `size` is in points. Commits the surface, which has no buffer yet.
    LayerSurface(const WaylandCompositor& compositor, wl_surface* surface, wl_output* output,
                 QSize size, Handlers handlers);
    LayerSurface(const LayerSurface&) = delete;
    LayerSurface& operator=(const LayerSurface&) = delete;

    void setSize(QSize size);

    /// Whether it has the keyboard to itself. Commits the surface.
    void setKeyboardExclusive(bool exclusive);

    /// Makes `popup` a child of it.
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
