#pragma once

#include <QPainterPath>
#include <QStringView>

namespace brellowind {

/// The side of the square that the symbols are designed in, in points.
inline constexpr double symbolBox = 20;

/// The area that the symbol of this name fills, inside the box. Empty for a name that is none of
/// ours.
QPainterPath symbolPath(QStringView name);

} // namespace brellowind
