#include "views/drawing/LyricText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QQuickWindow>
#include <algorithm>
#include <cmath>

namespace brellowind {

LyricText::LyricText(QQuickItem* parent) : PainterItem(parent) {}

LyricText::~LyricText() {
    FrameDriver::shared().forget(*this);
}

void LyricText::setText(const QString& text) {
    if (text == text_)
        return;
    text_ = text;
    if (isComponentComplete())
        show(FrameDriver::shared().now());
    Q_EMIT textChanged(text_);
}

void LyricText::setPresent(bool present) {
    if (present == present_)
        return;
    present_ = present;
    if (isComponentComplete()) {
        const double now = FrameDriver::shared().now();
        if (present_)
            layers_.back().comeIn(now);
        else
            layers_.back().goAway(now);
        FrameDriver::shared().drive(*this);
    }
    Q_EMIT presentChanged();
}

void LyricText::setFont(const QFont& font) {
    if (font == font_)
        return;
    font_ = font;
    if (isComponentComplete()) {
        layOut();
    }
    Q_EMIT fontChanged();
}

double LyricText::naturalWidth() const {
    return layers_.empty() ? 0 : layers_.back().width();
}

void LyricText::componentComplete() {
    QQuickItem::componentComplete();
    layOut();
}

/// Shows the present text at once, without those that go.
void LyricText::layOut() {
    layers_.clear();
    layers_.emplace_back(text_, font_, maximumWidth_, present_ ? 1.0 : 0.0);
    setImplicitHeight(std::ceil(QFontMetricsF(font_).height()));
    followWidth();
    update();
}

void LyricText::followWidth() {
    setImplicitWidth(std::ceil(naturalWidth()));
    Q_EMIT naturalWidthChanged();
}

/// A line that is still on its way out turns back when its text comes again.
void LyricText::show(double now) {
    layers_.back().goAway(now);
    const auto leaving = std::ranges::find(layers_, text_, &TextLayer::text);
    if (leaving == layers_.end())
        layers_.emplace_back(text_, font_, maximumWidth_, 0.0);
    else
        layers_.splice(layers_.end(), layers_, leaving);
    if (present_)
        layers_.back().comeIn(now);
    followWidth();
    FrameDriver::shared().drive(*this);
}

std::optional<double> LyricText::advance(double now) {
    std::optional<double> fastest;
    for (auto& layer : layers_)
        fastest = std::max(fastest, layer.advance(now)); // resting is less than any speed
    while (layers_.size() > 1 && layers_.front().isGone())
        layers_.pop_front();
    update();
    return fastest;
}

QRectF LyricText::paintedRect() const {
    double widest = width();
    for (const auto& layer : layers_)
        widest = std::max(widest, layer.width());
    const double overhang = TextLayer::overhang();
    const double beside = (widest - width()) / 2 + overhang;
    return boundingRect().adjusted(-beside, -overhang, beside, overhang);
}

void LyricText::paint(QPainter& painter) {
    const double left = mapFromScene(QPointF(0, 0)).x();
    const double right = window() ? mapFromScene(QPointF(window()->width(), 0)).x() : width();
    for (auto& layer : layers_)
        layer.paint(painter, color_, width() / 2, 0, left, right);
}

} // namespace brellowind
