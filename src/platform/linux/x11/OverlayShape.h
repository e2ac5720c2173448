#pragma once

#include "foundation/Geometry.h"
#include "foundation/Path.h"

#include <functional>
#include <vector>

namespace brellowind::platform {

/// What the native window of an overlay takes of the pointer, and what there is of it at all.
class OverlayShape {
public:
    virtual ~OverlayShape() = default;

    /// `outline` and `reach`, in points of `scale` pixels, and `ignoresMouseEvents` are those of
    /// the overlay.
    virtual void update(const Path& outline, const std::vector<Rect>& reach, double scale,
                        bool ignoresMouseEvents) = 0;

    /// As of the overlay.
    virtual void present(const std::function<void()>& flush) { flush(); }
};

} // namespace brellowind::platform
