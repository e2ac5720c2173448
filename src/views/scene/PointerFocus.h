#pragma once

#include <QPointF>
#include <QPointer>
#include <Qt>
#include <optional>

namespace brellowind {

class Item;
class TapArea;

/// Which of a window's tap areas the pointer is about. A press belongs to the topmost area under it
/// that takes that button, until the button is released, wherever that is. While no button is down
/// the topmost area there that minds hovering is hovered.
class PointerFocus {
public:
    /// `root` is around all areas and must outlive it.
    explicit PointerFocus(const Item& root) : root_(root) {}

    // Positions are points of the window.
    void press(QPointF position, Qt::MouseButton button);
    void release(QPointF position, Qt::MouseButton button);
    void move(QPointF position);

    /// The pointer is not over the window any more.
    void leave();

    /// The window is gone, and with it any press.
    void cancel();

    /// Areas may have moved under a pointer at rest.
    void follow();

private:
    void hover(TapArea* area);

    const Item& root_;
    QPointer<TapArea> pressed_;
    QPointer<TapArea> hovered_;
    Qt::MouseButton button_ = Qt::NoButton; ///< that `pressed_` was pressed with
    std::optional<QPointF> position_;       ///< while it is over the window
};

} // namespace brellowind
