#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace brellowind {

/// Eight spokes of a wheel, each fainter than the next; `step` says which is the brightest.
class Spokes : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged REQUIRED FINAL)
    Q_PROPERTY(int step READ step WRITE setStep NOTIFY stepChanged FINAL)

public:
    static constexpr int count = 8;

    explicit Spokes(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

    QColor color() const { return color_; }
    void setColor(const QColor& color);

    /// From 0, at the top, clockwise. Any number will do: the wheel goes round.
    int step() const { return step_; }
    void setStep(int step);

Q_SIGNALS:
    void colorChanged();
    void stepChanged();

private:
    QColor color_;
    int step_ = 0;
};

} // namespace brellowind
