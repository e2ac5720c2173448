#pragma once

#include "views/scene/Item.h"

#include <algorithm>

namespace brellowind {

/// Gives `item` an opacity within 0 and 1; what is clear is not there for the pointer either.
inline void fade(Item& item, double opacity) {
    item.setOpacity(std::clamp(opacity, 0.0, 1.0));
    item.setVisible(item.opacity() > 0);
}

} // namespace brellowind
