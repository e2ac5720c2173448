#pragma once

#include <QQuickItem>

class QPainter;

namespace brellowind {

/// An item that draws itself with the window's own painter, under all transformations and without
/// an image in between: sharp at every scale and free of memory. For the software scene graph.
class PainterItem : public QQuickItem {
    Q_OBJECT

public:
    explicit PainterItem(QQuickItem* parent = nullptr);

    /// Draws in the item's coordinates, antialiased.
    virtual void paint(QPainter& painter) = 0;

    /// All that `paint` touches, in the item's coordinates.
    virtual QRectF paintedRect() const { return boundingRect(); }

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

    /// Points of the screen in one point of the item.
    double pixelRatio() const;
};

} // namespace brellowind
