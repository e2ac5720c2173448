#pragma once

#include <QQuickItem>
#include <algorithm>

namespace brellowind {

/// Gives `item` an opacity within 0 and 1; what is clear is not there for the pointer either.
inline void fade(QQuickItem& item, double opacity) {
    item.setOpacity(std::clamp(opacity, 0.0, 1.0));
    item.setVisible(item.opacity() > 0);
}

} // namespace brellowind
