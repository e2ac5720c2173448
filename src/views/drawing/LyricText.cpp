#include "views/drawing/LyricText.h"

#include "views/scene/SceneWindow.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

namespace brellowind {

LyricText::LyricText(Look look, const QString& text, bool present, FrameDriver& frames,
                     Item* parent)
    : PainterItem(parent), frames_(frames), look_(std::move(look)), text_(text), present_(present) {
    layers_.emplace_back(text_, look_.font, look_.maximumWidth, present_ ? 1.0 : 0.0);
    followSize();
}

LyricText::~LyricText() {
    frames_.forget(*this);
}

/// A line that is still on its way out turns back when its text comes again.
void LyricText::setText(const QString& text) {
    if (text == text_)
        return;
    text_ = text;
    const double now = frames_.now();
    layers_.back().goAway(now);
    const auto leaving = std::ranges::find(layers_, text_, &TextLayer::text);
    if (leaving == layers_.end())
        layers_.emplace_back(text_, look_.font, look_.maximumWidth, 0.0);
    else
        layers_.splice(layers_.end(), layers_, leaving);
    if (present_)
        layers_.back().comeIn(now);
    followSize();
    frames_.drive(*this);
    announceName(*this);
}

void LyricText::setPresent(bool present) {
    if (present == present_)
        return;
    present_ = present;
    const double now = frames_.now();
    if (present_)
        layers_.back().comeIn(now);
    else
        layers_.back().goAway(now);
    frames_.drive(*this);
}

void LyricText::visibilityChanged() {
    announceVisibility(*this, isVisible());
}

void LyricText::followSize() {
    setSize({std::ceil(naturalWidth()), std::ceil(QFontMetricsF(look_.font).height())});
}

std::optional<double> LyricText::advance(double now) {
    std::optional<double> fastest;
    for (auto& layer : layers_)
        fastest = std::max(fastest, layer.advance(now)); // no value is less than any speed
    while (layers_.size() > 1 && layers_.front().isGone())
        layers_.pop_front();
    update();
    return fastest;
}

QRectF LyricText::paintedRect() const {
    QRectF all;
    for (const auto& layer : layers_) {
        const double overhang = layer.overhang();
        const double beside = (layer.width() - width()) / 2 + overhang;
        all |= boundingRect().adjusted(-beside, -overhang, beside, overhang);
    }
    return all;
}

void LyricText::paint(QPainter& painter) {
    const QTransform fromWindow = transform().inverted();
    const double left = fromWindow.map(QPointF(0, 0)).x();
    const double right = window() ? fromWindow.map(QPointF(window()->width(), 0)).x() : width();
    for (auto& layer : layers_)
        layer.paint(painter, look_.color, width() / 2, 0, left, right);
}

} // namespace brellowind
