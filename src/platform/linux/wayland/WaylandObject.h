// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <memory>
#include <wayland-client.h>
#include <wlr-layer-shell-unstable-v1-client-protocol.h>
#include <xdg-activation-v1-client-protocol.h>
#include <xdg-shell-client-protocol.h>

namespace brellowind::platform {

struct WaylandDestroy {
    void operator()(wl_buffer* buffer) const { wl_buffer_destroy(buffer); }
    void operator()(wl_event_queue* queue) const { wl_event_queue_destroy(queue); }
    void operator()(wl_region* region) const { wl_region_destroy(region); }
    void operator()(wl_registry* registry) const { wl_registry_destroy(registry); }
    void operator()(wl_shm* memory) const { wl_shm_destroy(memory); }
    void operator()(wl_shm_pool* pool) const { wl_shm_pool_destroy(pool); }
    void operator()(wl_surface* surface) const { wl_surface_destroy(surface); }
    void operator()(xdg_activation_token_v1* token) const {
        xdg_activation_token_v1_destroy(token);
    }
    void operator()(xdg_activation_v1* activation) const { xdg_activation_v1_destroy(activation); }
    void operator()(xdg_popup* popup) const { xdg_popup_destroy(popup); }
    void operator()(xdg_positioner* positioner) const { xdg_positioner_destroy(positioner); }
    void operator()(xdg_surface* surface) const { xdg_surface_destroy(surface); }
    void operator()(xdg_wm_base* shell) const { xdg_wm_base_destroy(shell); }
    void operator()(zwlr_layer_shell_v1* shell) const { zwlr_layer_shell_v1_destroy(shell); }
    void operator()(zwlr_layer_surface_v1* surface) const {
        zwlr_layer_surface_v1_destroy(surface);
    }
};

/// For listeners of a registry that is read once.
inline void ignoreRemoval(void* /*data*/, wl_registry* /*registry*/, std::uint32_t /*name*/) {}

/// Owns a protocol object or an event queue.
template <typename Object>
using WaylandObject = std::unique_ptr<Object, WaylandDestroy>;

} // namespace brellowind::platform
