// SPDX-License-Identifier: MIT

#pragma once

#include "views/scene/Item.h"

#include <algorithm>

namespace brellowind {

/// Sets the opacity of `item`, clamped to [0, 1]. At 0 the item is invisible and has no input.
inline void fade(Item& item, double opacity) {
    item.setOpacity(std::clamp(opacity, 0.0, 1.0));
    item.setVisible(item.opacity() > 0);
}

} // namespace brellowind
