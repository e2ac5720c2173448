// SPDX-License-Identifier: MIT

#include "platform/linux/wayland/LayerSurface.h"

#include <utility>

namespace brellowind::platform {
namespace {

/// The namespace. Some compositors stack surfaces with names such as "dock" or "notification" below
/// full-screen windows.
constexpr const char* purpose = "brellowind";

} // namespace

LayerSurface::LayerSurface(const WaylandCompositor& compositor, wl_surface* surface,
                           wl_output* output, QSize size, Handlers handlers)
    : surface_(surface),
      layerSurface_(zwlr_layer_shell_v1_get_layer_surface(
          compositor.layerShell(), surface, output, ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, purpose)),
      handlers_(std::move(handlers)) {
    static constexpr zwlr_layer_surface_v1_listener listener{configure, close};
    zwlr_layer_surface_v1_add_listener(layerSurface_.get(), &listener, this);
    zwlr_layer_surface_v1_set_anchor(layerSurface_.get(), ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP);
    zwlr_layer_surface_v1_set_exclusive_zone(layerSurface_.get(), -1);
    zwlr_layer_surface_v1_set_keyboard_interactivity(
        layerSurface_.get(), ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE);
    setSize(size);
    wl_surface_commit(surface_);
}

void LayerSurface::setSize(QSize size) {
    zwlr_layer_surface_v1_set_size(layerSurface_.get(), static_cast<std::uint32_t>(size.width()),
                                   static_cast<std::uint32_t>(size.height()));
}

void LayerSurface::setKeyboardExclusive(bool exclusive) {
    zwlr_layer_surface_v1_set_keyboard_interactivity(
        layerSurface_.get(), exclusive ? ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_EXCLUSIVE
                                       : ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE);
    wl_surface_commit(surface_);
}

void LayerSurface::adoptPopup(xdg_popup* popup) {
    zwlr_layer_surface_v1_get_popup(layerSurface_.get(), popup);
}

void LayerSurface::configure(void* self, zwlr_layer_surface_v1* surface, std::uint32_t serial,
                             std::uint32_t /*width*/, std::uint32_t /*height*/) {
    zwlr_layer_surface_v1_ack_configure(surface, serial);
    const auto configured = static_cast<LayerSurface*>(self)->handlers_.configured;
    configured();
}

void LayerSurface::close(void* self, zwlr_layer_surface_v1* /*surface*/) {
    const auto closed = static_cast<LayerSurface*>(self)->handlers_.closed;
    closed();
}

} // namespace brellowind::platform
