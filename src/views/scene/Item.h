// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QRegion>
#include <QSizeF>
#include <QTransform>
#include <vector>

namespace brellowind {

class SceneWindow;

/// A node of the scene graph of a `SceneWindow`: a rectangle in points. Draws itself with the
/// window's painter; positions, fades, scales, rotates and clips its children, which it owns. Later
/// children are above earlier ones. Changes are drawn in the window's next frame.
class Item : public QObject {
    Q_OBJECT

public:
    /// The point about which the item is scaled and rotated.
    enum TransformOrigin { Centre, Top, BottomLeft };

    /// The parent takes ownership. An item without a parent is not shown.
    explicit Item(Item* parent = nullptr);
    ~Item() override;

    const std::vector<Item*>& childItems() const { return children_; }

    /// Null if it belongs to no window.
    SceneWindow* window() const;

    QPointF position() const { return position_; }
    double x() const { return position_.x(); }
    double y() const { return position_.y(); }
    void setPosition(QPointF position) { set(position_, position); }
    void setX(double x) { setPosition({x, y()}); }
    void setY(double y) { setPosition({x(), y}); }

    QSizeF size() const { return size_; }
    double width() const { return size_.width(); }
    double height() const { return size_.height(); }
    QRectF boundingRect() const { return {QPointF(0, 0), size_}; }
    void setSize(QSizeF size);

    double opacity() const { return opacity_; }
    void setOpacity(double opacity) { set(opacity_, opacity); }

    /// Whether the item and all its ancestors are visible.
    bool isVisible() const { return visible_ && (!parent_ || parent_->isVisible()); }
    void setVisible(bool visible);

    void setScale(double scale) { set(scale_, scale); }
    void setRotation(double clockwiseDegrees) { set(rotation_, clockwiseDegrees); }
    void setTransformOrigin(TransformOrigin origin) { set(origin_, origin); }

    /// Clips its children to its rectangle.
    void setClip(bool clip) { set(clip_, clip); }

    bool contains(QPointF point) const { return boundingRect().contains(point); }

    /// From the item's coordinates to those of `ancestor`, by default of the window.
    QTransform transform(const Item* ancestor = nullptr) const;
    QPointF mapFromScene(QPointF point) const { return transform().inverted().map(point); }
    QRectF mapRectToScene(const QRectF& rect) const { return transform().mapRect(rect); }

    /// Draws the item in its own coordinates. Antialiasing is enabled.
    virtual void paint(QPainter& /*painter*/) {}

    /// The bounds of the drawing, in the item's coordinates. Empty if `paint` draws nothing.
    virtual QRectF paintedRect() const { return {}; }

    /// Schedules a frame in which the item is repainted.
    void update();

protected:
    /// Called when `isVisible` has changed.
    virtual void visibilityChanged() {}

    /// Pixels per point on the window's screen.
    double pixelRatio() const;

private:
    friend class SceneWindow;

    /// The rendered state of the item in a frame.
    struct RenderState {
        QTransform transform; ///< to the window
        double opacity = 1;
        QRectF clip; ///< in the window; null: not clipped
        QRectF rect; ///< in the window, bounds of the drawing; empty: not visible

        bool operator==(const RenderState&) const = default;
    };

    template <typename Value>
    void set(Value& member, Value value) {
        if (value == member)
            return;
        member = value;
        requestFrame();
    }

    void requestFrame();
    void notifyVisibility();
    QTransform transformToParent() const;
    void updateRenderState(const RenderState& inherited, bool isInheritedNew, QRegion& damage);
    void draw(QPainter& painter, const QRegion& region);

    Item* parent_;
    std::vector<Item*> children_;
    SceneWindow* window_ = nullptr; ///< set in the root item only
    QPointF position_;
    QSizeF size_{0, 0};
    double opacity_ = 1;
    double scale_ = 1;
    double rotation_ = 0; ///< degrees, clockwise
    TransformOrigin origin_ = Centre;
    bool clip_ = false;
    bool visible_ = true;
    bool stale_ = true;      ///< must be repainted even if its state is that of the last frame
    bool changed_ = true;    ///< the item or a descendant has changed since the last frame
    RenderState rendered_;   ///< in the last frame
    RenderState childState_; ///< inherited by the children in the last frame
};

/// An item that draws within its rectangle.
class PainterItem : public Item {
    Q_OBJECT

public:
    using Item::Item;

    void paint(QPainter& painter) override = 0;
    QRectF paintedRect() const override { return boundingRect(); }
};

} // namespace brellowind
