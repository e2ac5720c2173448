#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <wayland-client.h>

namespace brellowind::test {

/// A connection to a compositor and the globals that it offers. Throws std::runtime_error when it
/// cannot connect or breaks.
class WaylandConnection {
public:
    /// `socket` with its folder, or null for the one that the environment names.
    explicit WaylandConnection(const char* socket);
    WaylandConnection(const WaylandConnection&) = delete;
    WaylandConnection& operator=(const WaylandConnection&) = delete;
    ~WaylandConnection();

    wl_display* display() const { return display_; }

    /// The first global of an interface. Throws when the compositor has none of this version.
    template <class T>
    T* bind(const wl_interface& interface, std::uint32_t version) const {
        return static_cast<T*>(bindAny(interface, version));
    }

    /// Returns when the compositor has done all that was asked of it.
    void finish() const;

    /// Handles events until the connection breaks.
    void runToTheEnd() const;

private:
    struct Global {
        std::uint32_t name;
        std::uint32_t version;
    };

    void* bindAny(const wl_interface& interface, std::uint32_t version) const;

    wl_display* display_;
    wl_registry* registry_ = nullptr;
    std::map<std::string, Global> globals_;
};

} // namespace brellowind::test
