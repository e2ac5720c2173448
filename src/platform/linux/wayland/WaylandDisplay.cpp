// SPDX-License-Identifier: MIT

#include "platform/linux/wayland/WaylandDisplay.h"

#include "platform/linux/wayland/WaylandObject.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace brellowind::platform {
namespace {

void noteGlobal(void* found, wl_registry* /*registry*/, std::uint32_t /*name*/,
                const char* interface, std::uint32_t /*version*/) {
    if (std::string_view(interface) == zwlr_layer_shell_v1_interface.name)
        *static_cast<bool*>(found) = true;
}

constexpr wl_registry_listener registryListener{noteGlobal, ignoreRemoval};

} // namespace

bool offersLayerShell() {
    // An inherited connection can be used only once, by Qt.
    if (std::getenv("WAYLAND_SOCKET"))
        return true;
    // Without a name libwayland tries a default one, which may belong to another session.
    if (!std::getenv("WAYLAND_DISPLAY"))
        return false;
    const std::unique_ptr<wl_display, decltype(&wl_display_disconnect)> display(
        wl_display_connect(nullptr), wl_display_disconnect);
    if (!display)
        return false;
    const WaylandObject<wl_registry> registry(wl_display_get_registry(display.get()));
    bool found = false;
    wl_registry_add_listener(registry.get(), &registryListener, &found);
    wl_display_roundtrip(display.get());
    return found;
}

std::string waylandSocketPath() {
    const char* named = std::getenv("WAYLAND_DISPLAY");
    const char* folder = std::getenv("XDG_RUNTIME_DIR");
    if (!named)
        return {};
    const auto path = std::filesystem::path(folder ? folder : "") / named;
    std::error_code failure;
    return std::filesystem::canonical(path, failure).string();
}

} // namespace brellowind::platform
