// SPDX-License-Identifier: MIT

#include "desktops/clients/PlainSurface.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <sys/mman.h>
#include <unistd.h>

namespace brellowind::test {

PlainSurface::PlainSurface(const WaylandConnection& connection, std::uint32_t colour)
    : memory_(connection.bind<wl_shm>(wl_shm_interface, 1)), colour_(colour) {
    auto* compositor = connection.bind<wl_compositor>(wl_compositor_interface, 1);
    surface_ = wl_compositor_create_surface(compositor);
}

void PlainSurface::show(int width, int height) {
    if (width != width_ || height != height_)
        reportWhenSeen();
    fill(width, height);
}

void PlainSurface::fill(int width, int height) {
    width_ = width;
    height_ = height;
    wl_surface_attach(surface_, makeBuffer(), 0, 0);
    wl_surface_damage(surface_, 0, 0, width, height);
    wl_surface_commit(surface_);
}

wl_buffer* PlainSurface::makeBuffer() const {
    static constexpr wl_buffer_listener listener{
        [](void*, wl_buffer* buffer) { wl_buffer_destroy(buffer); }};
    const auto pixels = static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_);
    const auto bytes = pixels * sizeof colour_;
    const int file = ::memfd_create("plain", MFD_CLOEXEC);
    if (file < 0 || ::ftruncate(file, static_cast<off_t>(bytes)) != 0)
        throw std::runtime_error("no memory for a buffer");
    auto* memory = ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (memory == MAP_FAILED)
        throw std::runtime_error("no memory for a buffer");
    std::fill_n(static_cast<std::uint32_t*>(memory), pixels, colour_);
    ::munmap(memory, bytes);
    auto* pool = wl_shm_create_pool(memory_, file, static_cast<std::int32_t>(bytes));
    auto* buffer =
        wl_shm_pool_create_buffer(pool, 0, width_, height_, 4 * width_, WL_SHM_FORMAT_XRGB8888);
    wl_shm_pool_destroy(pool);
    ::close(file);
    wl_buffer_add_listener(buffer, &listener, nullptr);
    return buffer;
}

void PlainSurface::reportWhenSeen() {
    static constexpr wl_callback_listener listener{
        [](void* self, wl_callback* frame, std::uint32_t) {
            const auto& surface = *static_cast<PlainSurface*>(self);
            std::printf("shown %d %d\n", surface.width_, surface.height_);
            wl_callback_destroy(frame);
        }};
    wl_callback_add_listener(wl_surface_frame(surface_), &listener, this);
}

} // namespace brellowind::test
