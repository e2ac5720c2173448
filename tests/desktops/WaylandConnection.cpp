#include "desktops/WaylandConnection.h"

#include <stdexcept>

namespace brellowind::test {

WaylandConnection::WaylandConnection(const char* socket) : display_(wl_display_connect(socket)) {
    if (!display_)
        throw std::runtime_error("no Wayland compositor answers");
    static constexpr wl_registry_listener listener{
        [](void* self, wl_registry*, std::uint32_t name, const char* interface,
           std::uint32_t version) {
            static_cast<WaylandConnection*>(self)->globals_.try_emplace(interface,
                                                                        Global{name, version});
        },
        [](void*, wl_registry*, std::uint32_t) {}};
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

void* WaylandConnection::bindAny(const wl_interface& interface, std::uint32_t version) const {
    const auto global = globals_.find(interface.name);
    if (global == globals_.end() || global->second.version < version)
        throw std::runtime_error(std::string("the compositor lacks ") + interface.name);
    return wl_registry_bind(registry_, global->second.name, &interface, version);
}

} // namespace brellowind::test
