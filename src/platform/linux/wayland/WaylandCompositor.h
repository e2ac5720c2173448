// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/wayland/WaylandObject.h"

#include <cstdint>

class QScreen;
class QWindow;

namespace brellowind::platform {

/// The globals of the Qt application's compositor that Qt does not use itself. Main thread only.
class WaylandCompositor {
public:
    /// REQUIRES: a `QGuiApplication` on the platform "wayland", which outlives this object.
    WaylandCompositor();

    wl_display* display() const { return display_; }
    wl_compositor* surfaces() const { return surfaces_; }
    wl_shm* sharedMemory() const { return sharedMemory_.get(); }
    zwlr_layer_shell_v1* layerShell() const { return layerShell_.get(); } ///< null if not supported
    std::uint32_t layerShellVersion() const;
    xdg_wm_base* shell() const { return shell_.get(); }
    xdg_activation_v1* activation() const { return activation_.get(); } ///< null if not supported

    wl_seat* seat() const;        ///< the last used one
    std::uint32_t serial() const; ///< of the last input event

    /// Null if `window` has none.
    static wl_surface* surface(QWindow& window);
    static wl_output* output(QScreen& screen);

private:
    static void bindGlobal(void* self, wl_registry* registry, std::uint32_t name,
                           const char* interface, std::uint32_t version);

    wl_display* display_;
    wl_compositor* surfaces_;
    WaylandObject<wl_shm> sharedMemory_;
    WaylandObject<zwlr_layer_shell_v1> layerShell_;
    WaylandObject<xdg_wm_base> shell_;
    WaylandObject<xdg_activation_v1> activation_;
};

} // namespace brellowind::platform
