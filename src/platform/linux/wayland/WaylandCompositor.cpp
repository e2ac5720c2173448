// SPDX-License-Identifier: MIT

#include "platform/linux/wayland/WaylandCompositor.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <qpa/qplatformnativeinterface.h>
#include <string_view>

namespace brellowind::platform {
namespace {

template <typename Resource>
Resource* integrationResource(const char* name) {
    return static_cast<Resource*>(
        QGuiApplication::platformNativeInterface()->nativeResourceForIntegration(name));
}

void answerPing(void* /*data*/, xdg_wm_base* shell, std::uint32_t serial) {
    xdg_wm_base_pong(shell, serial);
}

constexpr xdg_wm_base_listener shellListener{answerPing};

/// Binds `global` if it has the type `interface`, in `version`, limited to `known`. Its events are
/// dispatched with those of Qt.
template <typename Object>
void take(WaylandObject<Object>& global, const wl_interface& wanted, std::uint32_t known,
          wl_registry* registry, std::uint32_t name, const char* interface, std::uint32_t version) {
    if (global || std::string_view(interface) != wanted.name)
        return;
    auto* object = wl_registry_bind(registry, name, &wanted, std::min(known, version));
    global.reset(static_cast<Object*>(object));
    wl_proxy_set_queue(static_cast<wl_proxy*>(object), nullptr);
}

} // namespace

WaylandCompositor::WaylandCompositor()
    : display_(integrationResource<wl_display>("wl_display")),
      surfaces_(integrationResource<wl_compositor>("compositor")) {
    // On a separate queue: waiting on the default one would run Qt's handlers.
    const WaylandObject<wl_event_queue> queue(wl_display_create_queue(display_));
    const std::unique_ptr<void, decltype(&wl_proxy_wrapper_destroy)> wrapper(
        wl_proxy_create_wrapper(display_), wl_proxy_wrapper_destroy);
    wl_proxy_set_queue(static_cast<wl_proxy*>(wrapper.get()), queue.get());
    const WaylandObject<wl_registry> registry(
        wl_display_get_registry(static_cast<wl_display*>(wrapper.get())));
    static constexpr wl_registry_listener listener{bindGlobal, ignoreRemoval};
    wl_registry_add_listener(registry.get(), &listener, this);
    wl_display_roundtrip_queue(display_, queue.get());
    if (shell_)
        xdg_wm_base_add_listener(shell_.get(), &shellListener, nullptr);
}

void WaylandCompositor::bindGlobal(void* self, wl_registry* registry, std::uint32_t name,
                                   const char* interface, std::uint32_t version) {
    auto& to = *static_cast<WaylandCompositor*>(self);
    take(to.sharedMemory_, wl_shm_interface, 1, registry, name, interface, version);
    take(to.layerShell_, zwlr_layer_shell_v1_interface, 4, registry, name, interface, version);
    take(to.shell_, xdg_wm_base_interface, 1, registry, name, interface, version);
    take(to.activation_, xdg_activation_v1_interface, 1, registry, name, interface, version);
}

std::uint32_t WaylandCompositor::layerShellVersion() const {
    return zwlr_layer_shell_v1_get_version(layerShell_.get());
}

wl_seat* WaylandCompositor::seat() const {
    return integrationResource<wl_seat>("wl_seat");
}

std::uint32_t WaylandCompositor::serial() const {
    const auto* serial = integrationResource<void>("serial");
    return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(serial));
}

wl_surface* WaylandCompositor::surface(QWindow& window) {
    return static_cast<wl_surface*>(
        QGuiApplication::platformNativeInterface()->nativeResourceForWindow("surface", &window));
}

wl_output* WaylandCompositor::output(QScreen& screen) {
    return static_cast<wl_output*>(
        QGuiApplication::platformNativeInterface()->nativeResourceForScreen("output", &screen));
}

} // namespace brellowind::platform
