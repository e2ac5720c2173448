#pragma once

#include "views/scene/Item.h"

#include <algorithm>

namespace brellowind {

/// Sets the opacity of `item`, clamped to 0 and 1, and hides it at 0, also from the pointer.
inline void fade(Item& item, double opacity) {
    item.setOpacity(std::clamp(opacity, 0.0, 1.0));
    item.setVisible(item.opacity() > 0);
}

} // namespace brellowind
