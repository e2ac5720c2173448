// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QPointer>
#include <Qt>
#include <optional>

namespace brellowind {

class Item;
class TapArea;

/// Dispatches pointer events to the tap areas of a window. A press goes to the topmost area under
/// the pointer that accepts the button; that area also receives the release. The right button acts
/// on press. While no button is pressed, the topmost area under the pointer that accepts hovering
/// is hovered.
class PointerFocus {
public:
    /// `root` is an ancestor of all areas and must outlive this object.
    explicit PointerFocus(const Item& root) : root_(root) {}

    // Positions are in points, relative to the window.
    void press(QPointF position, Qt::MouseButton button);
    void release(QPointF position, Qt::MouseButton button);
    void move(QPointF position);

    /// The pointer has left the window.
    void leave();

    /// The window was hidden. Resets the pointer and any press.
    void cancel();

    /// Updates the hovered area. Call after areas may have moved.
    void updateHover();

private:
    void hover(TapArea* area);

    const Item& root_;
    QPointer<TapArea> pressed_;
    QPointer<TapArea> hovered_;
    Qt::MouseButton button_ = Qt::NoButton; ///< of the press on `pressed_`
    std::optional<QPointF> position_;       ///< while the pointer is over the window
};

} // namespace brellowind
