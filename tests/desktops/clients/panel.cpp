// SPDX-License-Identifier: MIT

// A panel of one colour, 32 points high, at the top edge, that logs its input.
//     desktop-panel RRGGBB
#include "desktops/clients/InputLog.h"
#include "desktops/clients/PlainSurface.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <wlr-layer-shell-unstable-v1-client-protocol.h>

namespace {

using namespace brellowind::test;

void makePanel(const WaylandConnection& connection, PlainSurface& surface) {
    static constexpr zwlr_layer_surface_v1_listener listener{
        [](void* surfaceOfRole, zwlr_layer_surface_v1* role, std::uint32_t serial,
           std::uint32_t width, std::uint32_t height) {
            zwlr_layer_surface_v1_ack_configure(role, serial);
            static_cast<PlainSurface*>(surfaceOfRole)
                ->show(static_cast<int>(width), static_cast<int>(height));
        },
        [](void*, zwlr_layer_surface_v1*) { std::exit(0); }};
    constexpr int height = 32;
    auto* shell = connection.bind<zwlr_layer_shell_v1>(zwlr_layer_shell_v1_interface, 1);
    auto* role = zwlr_layer_shell_v1_get_layer_surface(shell, surface.get(), nullptr,
                                                       ZWLR_LAYER_SHELL_V1_LAYER_TOP, "panel");
    zwlr_layer_surface_v1_add_listener(role, &listener, &surface);
    zwlr_layer_surface_v1_set_anchor(role, ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP |
                                               ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT |
                                               ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT);
    zwlr_layer_surface_v1_set_size(role, 0, height);
    zwlr_layer_surface_v1_set_exclusive_zone(role, height);
    wl_surface_commit(surface.get());
}

} // namespace

int main(int argc, char** argv) try {
    if (argc != 2)
        return 2;
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const WaylandConnection connection(nullptr);
    const InputLog log(connection);
    PlainSurface surface(connection,
                         static_cast<std::uint32_t>(std::strtoul(argv[1], nullptr, 16)));
    makePanel(connection, surface);
    connection.runToTheEnd();
    return 1;
} catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
}
