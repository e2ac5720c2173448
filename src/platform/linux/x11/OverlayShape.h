// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Geometry.h"
#include "foundation/Path.h"

#include <functional>
#include <vector>

namespace brellowind::platform {

/// The input shape and the bounding shape of an overlay's native window.
class OverlayShape {
public:
    virtual ~OverlayShape() = default;

    /// The arguments are as for `Overlay`, in points of `scale` pixels.
    virtual void update(const Path& outline, const std::vector<Rect>& inputRects, double scale,
                        bool ignoresMouseEvents) = 0;

    /// As `Overlay::present`.
    virtual void present(const std::function<void()>& flush) { flush(); }
};

} // namespace brellowind::platform
