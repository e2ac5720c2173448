// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QWindow>
#include <optional>

namespace brellowind::platform {

/// Tells a window of Qt's that the pointer moves over it. While the program is inactive, and the
/// program of the pill nearly always is, Qt's plugin tells it of presses only.
class HoverEvents {
public:
    /// `window` outlives it.
    explicit HoverEvents(QWindow& window) : window_(window) {}

    /// In points from the window's top left corner; absent when the pointer is elsewhere.
    void move(std::optional<QPointF> position);

private:
    QWindow& window_;
    bool isInside_ = false;
};

} // namespace brellowind::platform
