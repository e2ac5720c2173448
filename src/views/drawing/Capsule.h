#pragma once

#include "views/drawing/PainterItem.h"

#include <QColor>

namespace brellowind {

/// A filled rectangle whose short sides are half circles.
class Capsule : public brellowind::PainterItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit Capsule(QQuickItem* parent = nullptr);

    QColor color() const { return color_; }
    void setColor(const QColor& color);

    void paint(QPainter& painter) override;

Q_SIGNALS:
    void colorChanged();

private:
    QColor color_ = Qt::white;
};

} // namespace brellowind
