// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Geometry.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace brellowind::platform {

/// The native window of an overlay: above all others, on every space, transparent, never the key
/// window, and left alone by the mouse at first.
class NativeOverlay {
public:
    virtual ~NativeOverlay() = default;

    /// In desktop coordinates.
    virtual void setFrame(const Rect& frame) = 0;

    /// Does not activate the program.
    virtual void orderFrontRegardless() = 0;

    /// The whole window takes the mouse, or none of it.
    virtual void setIgnoresMouseEvents(bool ignores) = 0;
};

/// Takes the native view that fills the window. The view outlives what is made.
using MakeNativeOverlay = std::function<std::unique_ptr<NativeOverlay>(std::uintptr_t view)>;

} // namespace brellowind::platform
