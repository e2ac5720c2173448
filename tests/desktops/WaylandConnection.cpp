// SPDX-License-Identifier: MIT

#include "desktops/WaylandConnection.h"

#include <stdexcept>

namespace brellowind::test {

WaylandConnection::WaylandConnection(const char* socket) : display_(wl_display_connect(socket)) {
    if (!display_)
        throw std::runtime_error("no Wayland compositor answers");
    static constexpr wl_registry_listener listener{
        [](void* self, wl_registry*, std::uint32_t name, const char* interface,
           std::uint32_t version) {
            static_cast<WaylandConnection*>(self)->globals_.push_back({name, interface, version});
        },
        [](void* self, wl_registry*, std::uint32_t name) {
            std::erase_if(static_cast<WaylandConnection*>(self)->globals_,
                          [name](const Global& global) { return global.name == name; });
        }};
    registry_ = wl_display_get_registry(display_);
    wl_registry_add_listener(registry_, &listener, this);
    finish();
}

WaylandConnection::~WaylandConnection() {
    if (registry_)
        wl_registry_destroy(registry_);
    wl_display_disconnect(display_);
}

void WaylandConnection::finish() const {
    if (wl_display_roundtrip(display_) < 0)
        throw std::runtime_error("the Wayland connection broke");
}

void WaylandConnection::runToTheEnd() const {
    while (wl_display_dispatch(display_) >= 0) {
    }
}

void* WaylandConnection::bindAt(const wl_interface& interface, std::uint32_t version,
                                std::size_t index) const {
    for (const Global& global : globals_)
        if (global.interface == interface.name && global.version >= version && index-- == 0)
            return wl_registry_bind(registry_, global.name, &interface, version);
    return nullptr;
}

} // namespace brellowind::test
