// SPDX-License-Identifier: MIT

#include "settings/window/Symbol.h"

#include <QPainter>
#include <QPainterPathStroker>
#include <QPolygonF>
#include <numbers>

namespace brellowind {
namespace {

constexpr QPointF center(symbolBox / 2, symbolBox / 2);
constexpr double glyphWidth = 1.8;   // of a stroke cut out of a filled circle
constexpr double outlineWidth = 1.5; // of other strokes

QPainterPath stroke(const QPainterPath& line, double width) {
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    stroker.setCurveThreshold(0.01); // smooth at a scale of 2
    return stroker.createStroke(line).simplified();
}

QPainterPath polyline(std::initializer_list<QPointF> points) {
    QPainterPath path;
    path.addPolygon(QPolygonF(QList<QPointF>(points)));
    return path;
}

QPainterPath disc(QPointF middle, double radius) {
    QPainterPath path;
    path.addEllipse(middle, radius, radius);
    return path;
}

/// A filled circle with `glyph` cut out.
QPainterPath badge(const QPainterPath& glyph) {
    return disc(center, 9).subtracted(glyph);
}

QPainterPath arrowDown() {
    return stroke(polyline({{10, 5.5}, {10, 14}}), glyphWidth)
        .united(stroke(polyline({{6.4, 10.7}, {10, 14.3}, {13.6, 10.7}}), glyphWidth));
}

QPainterPath checkmark() {
    return stroke(polyline({{6.1, 10.4}, {8.9, 13.3}, {13.9, 6.9}}), glyphWidth);
}

QPainterPath exclamationMark() {
    return stroke(polyline({{10, 5.7}, {10, 10.7}}), glyphWidth + 0.2)
        .united(disc({10, 14.1}, 1.2));
}

QPainterPath info() {
    return stroke(disc(center, 8.2), outlineWidth)
        .united(stroke(polyline({{10, 9.4}, {10, 14}}), outlineWidth + 0.2))
        .united(disc({10, 6.3}, 1.1));
}

QPointF onCircle(double radius, double turns) {
    const double angle = 2 * std::numbers::pi * turns;
    return center + radius * QPointF(std::sin(angle), -std::cos(angle));
}

QPainterPath gear() {
    constexpr int teeth = 8;
    QPolygonF outline;
    for (int tooth = 0; tooth < teeth; ++tooth) {
        const auto at = [tooth](double radius, double part) {
            return onCircle(radius, (tooth + part) / teeth);
        };
        outline << at(6.5, -0.33) << at(8.5, -0.2) << at(8.5, 0.2) << at(6.5, 0.33);
    }
    QPainterPath rim;
    rim.addPolygon(outline);
    rim.closeSubpath();
    return stroke(rim, outlineWidth).united(stroke(disc(center, 2.9), outlineWidth));
}

} // namespace

QPainterPath symbolPath(QStringView name) {
    if (name == QLatin1String("gearshape"))
        return gear();
    if (name == QLatin1String("info.circle"))
        return info();
    if (name == QLatin1String("arrow.down.circle.fill"))
        return badge(arrowDown());
    if (name == QLatin1String("checkmark.circle.fill"))
        return badge(checkmark());
    if (name == QLatin1String("exclamationmark.circle.fill"))
        return badge(exclamationMark());
    return {};
}

Symbol::Symbol(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    setImplicitSize(symbolBox, symbolBox);
    connect(this, &Symbol::changed, this, [this] { update(); });
}

void Symbol::paint(QPainter* painter) {
    painter->scale(width() / symbolBox, height() / symbolBox);
    painter->fillPath(symbolPath(name_), color_);
}

} // namespace brellowind
