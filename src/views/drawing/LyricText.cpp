// SPDX-License-Identifier: MIT

#include "views/drawing/LyricText.h"

#include "views/drawing/SoftEnds.h"
#include "views/scene/SceneWindow.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

namespace brellowind {
namespace {

/// The width of the fade at a clipped end, in points.
constexpr double softness = 24;

/// The nominal speed of a glide, in points per second. It gives 30 frames per second, which are
/// steps of two whole points at reading pace.
constexpr double glideSpeed = 15;

} // namespace

LyricText::LyricText(Style style, const QString& text, bool present, FrameDriver& frames,
                     Item* parent)
    : PainterItem(parent), frames_(frames), style_(std::move(style)), text_(text),
      present_(present) {
    layers_.emplace_back(text_, style_.font, present_ ? 1.0 : 0.0);
    updateSize();
    beginGlide();
}

LyricText::~LyricText() {
    frames_.forget(*this);
}

/// If the new text is still fading out, its fade is reversed.
void LyricText::setText(const QString& text) {
    if (text == text_)
        return;
    text_ = text;
    const double now = frames_.now();
    layers_.back().fadeOut(now);
    const auto leaving = std::ranges::find(layers_, text_, &TextLayer::text);
    if (leaving == layers_.end())
        layers_.emplace_back(text_, style_.font, 0.0);
    else
        layers_.splice(layers_.end(), layers_, leaving);
    if (present_)
        layers_.back().fadeIn(now);
    updateSize();
    beginGlide();
    frames_.drive(*this);
}

void LyricText::setPresent(bool present) {
    if (present == present_)
        return;
    present_ = present;
    const double now = frames_.now();
    if (present_) {
        layers_.back().fadeIn(now);
        beginGlide();
    } else {
        layers_.back().fadeOut(now);
    }
    frames_.drive(*this);
}

void LyricText::setRoom(double width) {
    if (width == style_.room)
        return;
    style_.room = width;
    updateSize();
    beginGlide();
    update();
}

void LyricText::setHeld(bool held) {
    if (held == held_)
        return;
    held_ = held;
    lastGlide_ = frames_.now();
    if (mayGlide())
        frames_.drive(*this);
}

void LyricText::visibilityChanged() {
    if (isVisible())
        beginGlide();
}

void LyricText::updateSize() {
    setSize({std::min(std::ceil(naturalWidth()), style_.room),
             std::ceil(QFontMetricsF(style_.font).height())});
}

bool LyricText::mayGlide() const {
    return isCut(layers_.back()) && present_ && !held_ && isVisible();
}

/// Starts at the beginning of the text, with the next frame.
void LyricText::beginGlide() {
    glide_.reset();
    layers_.back().setOffset(0);
    if (mayGlide())
        frames_.drive(*this);
}

std::optional<double> LyricText::glide(double now) {
    if (!mayGlide())
        return std::nullopt;
    if (!glide_) {
        glide_.emplace(naturalWidth() - style_.room, timeLeft_());
        glided_ = 0;
    } else {
        glided_ += now - lastGlide_;
    }
    lastGlide_ = now;
    layers_.back().setOffset(glide_->offset(glided_));
    if (glide_->isOver(glided_))
        return std::nullopt;
    return glide_->hasBegun(glided_) ? glideSpeed : 0;
}

std::optional<double> LyricText::advance(double now) {
    std::optional<double> fastest;
    bool changed = false;
    for (auto& layer : layers_) {
        changed |= !layer.isResting();
        fastest = std::max(fastest, layer.advance(now)); // nullopt is less than any speed
    }
    while (layers_.size() > 1 && layers_.front().isGone())
        layers_.pop_front();
    const double before = layers_.back().offset();
    fastest = std::max(fastest, glide(now));
    if (changed || layers_.back().offset() != before)
        update();
    return fastest;
}

QRectF LyricText::paintedRect() const {
    QRectF all;
    for (const auto& layer : layers_)
        all |= paintedRect(layer);
    return all;
}

QRectF LyricText::paintedRect(const TextLayer& layer) const {
    const double above = layer.overhang();
    const double beside = isCut(layer) ? fadeOverhang : above;
    const double half = std::min(layer.width(), style_.room) / 2 + beside;
    return {width() / 2 - half, -above, 2 * half, height() + 2 * above};
}

void LyricText::paint(QPainter& painter) {
    const QTransform fromWindow = transform().inverted();
    const double left = fromWindow.map(QPointF(0, 0)).x();
    const double right = window() ? fromWindow.map(QPointF(window()->width(), 0)).x() : width();
    for (auto& layer : layers_)
        if (isCut(layer))
            paintCut(layer, painter);
        else
            layer.paint(painter, style_.color, width() / 2, 0, left, right);
}

/// Fades only the ends that are clipped.
void LyricText::paintCut(TextLayer& layer, QPainter& painter) const {
    const double hidden = layer.width() - style_.room;
    const double hiddenLeft = layer.isRightToLeft() ? hidden - layer.offset() : layer.offset();
    const auto fade = [](double hiddenBeside) {
        return std::min(softness, fadeOverhang + hiddenBeside);
    };
    const QRectF seen = paintedRect(layer);
    const double centre = width() / 2 + hidden / 2 - hiddenLeft;
    paintWithSoftEnds(painter, {seen, fade(hiddenLeft), fade(hidden - hiddenLeft)},
                      [&](QPainter& inside) {
                          layer.paint(inside, style_.color, centre, 0, seen.left(), seen.right());
                      });
}

} // namespace brellowind
