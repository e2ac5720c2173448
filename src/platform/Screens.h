// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Geometry.h"
#include "foundation/Observers.h"

#include <optional>
#include <vector>

namespace brellowind::platform {

/// One screen, in desktop coordinates (origin at the bottom left of the primary screen, y upward).
struct Screen {
    Rect frame;                                 ///< the whole screen
    Rect visibleFrame{};                        ///< without menu bar and dock
    double topSafeAreaInset = 0;                ///< positive on a screen with a notch
    std::optional<Rect> auxiliaryTopLeftArea{}; ///< left of the notch; absent without one
    std::optional<Rect> auxiliaryTopRightArea{};

    bool operator==(const Screen&) const = default;
};

/// The connected screens.
class Screens {
public:
    virtual ~Screens() = default;

    /// In the system's order. May be empty.
    virtual std::vector<Screen> screens() = 0;

    /// The user's main screen, if any.
    virtual std::optional<Screen> main() = 0;

    /// Calls `callback` after every change of the arrangement.
    virtual Subscription onChange(Observers::Callback callback) = 0;
};

} // namespace brellowind::platform
