// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFont>

/// The colours, fonts and dimensions of the pill, in points.
namespace brellowind::style {

inline const QColor text = QColor::fromRgbF(0.96F, 0.96F, 0.96F);

inline constexpr double bandHeight = 20;
inline constexpr double spacing = 8;
inline constexpr double sidePadding = 20;
inline constexpr double topPadding = 5;
inline constexpr double bottomPadding = 12;
inline constexpr double minimizedBottomPadding = 8;
inline constexpr double minimumContentWidth = 232;
inline constexpr double thumbnailWidth = 19;
inline constexpr double thumbnailRadius = 4;
inline constexpr double indicatorMargin = 10; ///< of the input area around it

inline constexpr double panelWidth = 352;
inline constexpr double panelSidePadding = 16;
inline constexpr double panelTopPadding = 6;
inline constexpr double panelBottomPadding = 10;
inline constexpr double panelSpacing = 10;
inline constexpr double artworkSide = 320;
inline constexpr double artworkRadius = 18;

inline constexpr double grabberWidth = 36;
inline constexpr double grabberHeight = 5;
inline constexpr double grabberPadding = 2;

/// The interface font at `size` points.
inline QFont font(int size, QFont::Weight weight = QFont::Normal) {
    QFont font;
    font.setPixelSize(size);
    font.setWeight(weight);
    return font;
}

/// Linear interpolation from `a` to `b`; the fraction may overshoot.
constexpr double mix(double a, double b, double fraction) {
    return a + (b - a) * fraction;
}

/// Interpolation from `small` to `large`; a negative fraction is relative to `small`.
constexpr double swell(double small, double large, double fraction) {
    return fraction < 0 ? small * (1 + 2 * fraction) : mix(small, large, fraction);
}

} // namespace brellowind::style
