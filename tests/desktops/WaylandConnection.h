// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>
#include <wayland-client.h>

namespace brellowind::test {

/// A connection to a compositor and its globals. Throws std::runtime_error on connection errors.
class WaylandConnection {
public:
    /// `socket` is a path, or null for that of the environment.
    explicit WaylandConnection(const char* socket);
    WaylandConnection(const WaylandConnection&) = delete;
    WaylandConnection& operator=(const WaylandConnection&) = delete;
    ~WaylandConnection();

    wl_display* display() const { return display_; }

    /// The first global of an interface. Throws if there is none of this version.
    template <class T>
    T* bind(const wl_interface& interface, std::uint32_t version) const {
        auto* global = bindAt(interface, version, 0);
        if (!global)
            throw std::runtime_error(std::string("the compositor lacks ") + interface.name);
        return static_cast<T*>(global);
    }

    /// All globals of an interface.
    template <class T>
    std::vector<T*> bindAll(const wl_interface& interface, std::uint32_t version) const {
        std::vector<T*> all;
        while (auto* next = bindAt(interface, version, all.size()))
            all.push_back(static_cast<T*>(next));
        return all;
    }

    /// Round trip: waits until the compositor has processed all requests.
    void finish() const;

    /// Handles events until the connection breaks.
    void runToTheEnd() const;

private:
    struct Global {
        std::uint32_t name;
        std::string interface;
        std::uint32_t version;
    };

    /// Null if there are fewer.
    void* bindAt(const wl_interface& interface, std::uint32_t version, std::size_t index) const;

    wl_display* display_;
    wl_registry* registry_ = nullptr;
    std::vector<Global> globals_;
};

} // namespace brellowind::test
