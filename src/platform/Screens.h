#pragma once

#include "foundation/Geometry.h"
#include "foundation/Observers.h"

#include <optional>
#include <vector>

namespace brellowind::platform {

/// One screen, in desktop coordinates (origin at the bottom left of the primary screen, y upward).
struct Screen {
    Rect frame;                                 ///< the whole screen
    Rect visibleFrame{};                        ///< less the menu bar and the dock
    double topSafeAreaInset = 0;                ///< above 0 on a screen with a notch
    std::optional<Rect> auxiliaryTopLeftArea{}; ///< left of the notch; absent without one
    std::optional<Rect> auxiliaryTopRightArea{};

    bool operator==(const Screen&) const = default;
};

/// The screens that are connected at this moment.
class Screens {
public:
    virtual ~Screens() = default;

    /// In the order of the system; empty when there are none.
    virtual std::vector<Screen> screens() = 0;

    /// The screen that the user works on, if any.
    virtual std::optional<Screen> main() = 0;

    /// Calls `callback` once each time the arrangement has changed, when the new one can be read.
    virtual Subscription onChange(Observers::Callback callback) = 0;
};

} // namespace brellowind::platform
