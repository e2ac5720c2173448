// SPDX-License-Identifier: MIT

#include "platform/linux/wayland/FocusReturn.h"

#include <sys/mman.h>
#include <unistd.h>

namespace brellowind::platform {
namespace {

/// One transparent pixel. Null if out of memory.
WaylandObject<wl_buffer> clearPixel(wl_shm* memory) {
    constexpr int bytes = 4; // new files are zeroed
    const int file = memfd_create("brellowind", MFD_CLOEXEC);
    if (file < 0)
        return nullptr;
    WaylandObject<wl_buffer> buffer;
    if (ftruncate(file, bytes) == 0) {
        const WaylandObject<wl_shm_pool> pool(wl_shm_create_pool(memory, file, bytes));
        buffer.reset(wl_shm_pool_create_buffer(pool.get(), 0, 1, 1, bytes, WL_SHM_FORMAT_ARGB8888));
    }
    close(file);
    return buffer;
}

} // namespace

void FocusReturn::start(wl_output* output) {
    layerSurface_.reset();
    surface_.reset(wl_compositor_create_surface(compositor_.surfaces()));
    layerSurface_.emplace(compositor_, surface_.get(), output, QSize(1, 1),
                          LayerSurface::Handlers{[this] { takeAndGo(); }, [] {}});
    layerSurface_->setKeyboardExclusive(true);
}

void FocusReturn::takeAndGo() {
    const auto buffer = clearPixel(compositor_.sharedMemory());
    wl_surface_attach(surface_.get(), buffer.get(), 0, 0);
    wl_surface_commit(surface_.get());
    layerSurface_.reset();
    surface_.reset();
}

} // namespace brellowind::platform
