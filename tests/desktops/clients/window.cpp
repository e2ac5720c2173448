// SPDX-License-Identifier: MIT

// A window of one colour that logs its input until it is closed.
//     desktop-window full-screen|maximized RRGGBB
#include "desktops/clients/InputLog.h"
#include "desktops/clients/PlainSurface.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <xdg-shell-client-protocol.h>

namespace {

using namespace brellowind::test;

class Window {
public:
    Window(const WaylandConnection& connection, bool fullScreen, std::uint32_t colour);

private:
    PlainSurface surface_;
    int width_ = 0;
    int height_ = 0;
};

Window::Window(const WaylandConnection& connection, bool fullScreen, std::uint32_t colour)
    : surface_(connection, colour) {
    static constexpr xdg_wm_base_listener baseListener{
        [](void*, xdg_wm_base* base, std::uint32_t serial) { xdg_wm_base_pong(base, serial); }};
    static constexpr xdg_surface_listener surfaceListener{
        [](void* self, xdg_surface* role, std::uint32_t serial) {
            auto& window = *static_cast<Window*>(self);
            xdg_surface_ack_configure(role, serial);
            if (window.width_ > 0)
                window.surface_.show(window.width_, window.height_);
            else
                window.surface_.showProvisionally();
        }};
    static constexpr xdg_toplevel_listener toplevelListener{
        .configure =
            [](void* self, xdg_toplevel*, std::int32_t width, std::int32_t height, wl_array*) {
                static_cast<Window*>(self)->width_ = width;
                static_cast<Window*>(self)->height_ = height;
            },
        .close = [](void*, xdg_toplevel*) { std::exit(0); },
        .configure_bounds = [](void*, xdg_toplevel*, std::int32_t, std::int32_t) {},
        .wm_capabilities = [](void*, xdg_toplevel*, wl_array*) {}};

    auto* base = connection.bind<xdg_wm_base>(xdg_wm_base_interface, 1);
    xdg_wm_base_add_listener(base, &baseListener, this);
    auto* role = xdg_wm_base_get_xdg_surface(base, surface_.get());
    xdg_surface_add_listener(role, &surfaceListener, this);
    auto* toplevel = xdg_surface_get_toplevel(role);
    xdg_toplevel_add_listener(toplevel, &toplevelListener, this);
    xdg_toplevel_set_title(toplevel, "Window of a test");
    xdg_toplevel_set_app_id(toplevel, "test-window");
    if (fullScreen)
        xdg_toplevel_set_fullscreen(toplevel, nullptr);
    else
        xdg_toplevel_set_maximized(toplevel);
    wl_surface_commit(surface_.get());
}

} // namespace

int main(int argc, char** argv) try {
    if (argc != 3)
        return 2;
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const WaylandConnection connection(nullptr);
    const InputLog log(connection);
    const auto colour = static_cast<std::uint32_t>(std::strtoul(argv[2], nullptr, 16));
    const Window window(connection, std::strcmp(argv[1], "full-screen") == 0, colour);
    connection.runToTheEnd();
    return 1;
} catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
}
