// SPDX-License-Identifier: MIT

#pragma once

#include "desktops/WaylandConnection.h"

namespace brellowind::test {

/// A surface of one opaque colour. Each time it is presented in a new size it prints the line
/// "shown WIDTH HEIGHT", in points.
class PlainSurface {
public:
    /// `colour` as 0xRRGGBB.
    PlainSurface(const WaylandConnection& connection, std::uint32_t colour);
    PlainSurface(const PlainSurface&) = delete;
    PlainSurface& operator=(const PlainSurface&) = delete;

    wl_surface* get() const { return surface_; }

    /// Fills and commits it in this size, once its role is configured.
    void show(int width, int height);

    /// The same without output, for compositors that configure a size only after the first commit.
    void showProvisionally() { fill(1, 1); }

private:
    void fill(int width, int height);
    wl_buffer* makeBuffer() const;
    void reportWhenSeen();

    wl_shm* memory_;
    wl_surface* surface_;
    std::uint32_t colour_;
    int width_ = 0;
    int height_ = 0;
};

} // namespace brellowind::test
