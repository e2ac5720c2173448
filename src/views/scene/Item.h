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

/// A rectangle of a `SceneWindow`, in points. It draws itself with the window's own painter, sharp
/// at every scale, and places, fades, scales, turns and clips its children, which it owns. Later
/// children lie over earlier ones. Whatever changes is drawn in the window's next frame.
class Item : public QObject {
    Q_OBJECT

public:
    /// The point that stays where it is while the item is scaled and turned.
    enum TransformOrigin { Centre, Top, BottomLeft };

    /// Without a parent it is seen nowhere.
    explicit Item(Item* parent = nullptr);
    ~Item() override;

    const std::vector<Item*>& childItems() const { return children_; }

    /// Null where no window shows it.
    SceneWindow* window() const;

    /// Moves it right below `sibling`.
    void stackBefore(const Item& sibling);

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

    /// Whether it and all that it lies in are visible.
    bool isVisible() const { return visible_ && (!parent_ || parent_->isVisible()); }
    void setVisible(bool visible);

    void setScale(double scale) { set(scale_, scale); }
    void setRotation(double clockwiseDegrees) { set(rotation_, clockwiseDegrees); }
    void setTransformOrigin(TransformOrigin origin) { set(origin_, origin); }

    /// Shows its children only as far as they lie within its rectangle.
    void setClip(bool clip) { set(clip_, clip); }

    bool contains(QPointF point) const { return boundingRect().contains(point); }

    /// From here to the window; with `ancestor`, to that one.
    QTransform transform(const Item* ancestor = nullptr) const;
    QPointF mapFromScene(QPointF point) const { return transform().inverted().map(point); }
    QRectF mapRectToScene(const QRectF& rect) const { return transform().mapRect(rect); }

    /// Draws in the item's coordinates, antialiased.
    virtual void paint(QPainter& /*painter*/) {}

    /// All that `paint` touches, in the item's coordinates. Empty for what draws nothing itself.
    virtual QRectF paintedRect() const { return {}; }

    /// Asks for a frame in which the item is drawn anew.
    void update();

protected:
    /// It came to be visible, or is so no more.
    virtual void visibilityChanged() {}

    /// Pixels of the screen in one point.
    double pixelRatio() const;

private:
    friend class SceneWindow;

    /// How a frame shows it.
    struct Look {
        QTransform transform; ///< to the window
        double opacity = 1;
        QRectF clip; ///< of the window; null: nothing clips it
        QRectF rect; ///< of the window, all that is drawn; empty: it is not seen

        bool operator==(const Look&) const = default;
    };

    template <typename Value>
    void set(Value& member, Value value) {
        if (value == member)
            return;
        member = value;
        requestFrame();
    }

    void requestFrame();
    void tellVisibility();
    void makeStale();
    QTransform transformToParent() const;
    void takeLook(const Look& around, bool isAroundNew, QRegion& damage);
    void draw(QPainter& painter, const QRegion& region);

    Item* parent_;
    std::vector<Item*> children_;
    SceneWindow* window_ = nullptr; ///< of the outermost item
    QPointF position_;
    QSizeF size_{0, 0};
    double opacity_ = 1;
    double scale_ = 1;
    double rotation_ = 0;
    TransformOrigin origin_ = Centre;
    bool clip_ = false;
    bool visible_ = true;
    bool stale_ = true;   ///< has to be drawn even where it looks as in the last frame
    bool changed_ = true; ///< it or something in it, since the last frame
    Look look_;           ///< in the last frame
    Look inside_;         ///< what its children saw around them then
};

/// An item that draws itself all over its rectangle.
class PainterItem : public Item {
    Q_OBJECT

public:
    using Item::Item;

    void paint(QPainter& painter) override = 0;
    QRectF paintedRect() const override { return boundingRect(); }
};

} // namespace brellowind
