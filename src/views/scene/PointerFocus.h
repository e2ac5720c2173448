#pragma once

#include <QPointF>
#include <QPointer>
#include <Qt>
#include <optional>

namespace brellowind {

class Item;
class TapArea;

/// Dispatches the pointer's events to a window's tap areas. A press goes to the topmost area under
/// it that takes that button, and so does the release, wherever it happens; a press of the right
/// button counts by itself. While no button is down the topmost area under the pointer that minds
/// hovering is hovered.
class PointerFocus {
public:
    /// `root` is an ancestor of all areas and must outlive this.
    explicit PointerFocus(const Item& root) : root_(root) {}

    // Positions are in points, relative to the window.
    void press(QPointF position, Qt::MouseButton button);
    void release(QPointF position, Qt::MouseButton button);
    void move(QPointF position);

    /// The pointer has left the window.
    void leave();

    /// The window was hidden: forgets the pointer and any press.
    void cancel();

    /// Updates what is hovered after areas may have moved under a resting pointer.
    void follow();

private:
    void hover(TapArea* area);

    const Item& root_;
    QPointer<TapArea> pressed_;
    QPointer<TapArea> hovered_;
    Qt::MouseButton button_ = Qt::NoButton; ///< with which `pressed_` was pressed
    std::optional<QPointF> position_;       ///< while it is over the window
};

} // namespace brellowind
