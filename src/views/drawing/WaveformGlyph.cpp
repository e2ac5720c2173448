// SPDX-License-Identifier: MIT

#include "views/drawing/WaveformGlyph.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace brellowind {
namespace {

constexpr int stepMs = 100;
constexpr int stepsInARound = 15;

constexpr int barCount = 5;
constexpr std::array<double, barCount> heights{0.36, 0.74, 1, 0.56, 0.28}; ///< relative
constexpr double barWidth = 2;                                             ///< of 16
constexpr double gapWidth = 1;    ///< whole points, for sharp bars
constexpr double faintest = 0.45; ///< opacity; not fainter than while paused

/// The opacity, out of 255, of the bar `index` in a step of the loop. The highlight extends one bar
/// to each side and is outside the symbol for a part of the loop.
int strength(int index, int step) {
    const double crest = step * (barCount + 3.0) / stepsInARound - 1.5;
    const double distance = std::abs(crest - index);
    if (distance >= 1.5)
        return qRound(255 * faintest);
    const double share = 0.5 + 0.5 * std::cos(std::numbers::pi * distance / 1.5);
    return qRound(255 * (faintest + (1 - faintest) * share));
}

/// A bar in a symbol that fills `symbol`, in pixels. Bars and gaps are whole pixels wide at every
/// position and scale.
QRect barRect(int index, const QRectF& symbol) {
    const double unit = symbol.width() / 16;
    const double width = std::max(1.0, std::round(barWidth * unit));
    const double pitch = width + std::max(1.0, std::round(gapWidth * unit));
    const double left = std::round(symbol.center().x() - ((barCount - 1) * pitch + width) / 2);
    const double half = symbol.height() * heights[static_cast<std::size_t>(index)] / 2;
    const double top = std::round(symbol.center().y() - half);
    const double bottom = std::round(symbol.center().y() + half);
    return QRectF(left + index * pitch, top, width, bottom - top).toRect();
}

QImage barPicture(QSize size) {
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(picture.rect(), size.width() / 2.0, size.width() / 2.0);
    return picture;
}

} // namespace

WaveformGlyph::WaveformGlyph(Item* parent) : PainterItem(parent), bars_(barCount) {}

void WaveformGlyph::setActive(bool active) {
    if (active == active_)
        return;
    active_ = active;
    updateTimer();
    update();
}

void WaveformGlyph::setStep(int step) {
    step %= stepsInARound;
    if (step == step_)
        return;
    const int before = std::exchange(step_, step);
    for (int i = 0; i < barCount; ++i)
        if (strength(i, step) != strength(i, before))
            return update();
}

void WaveformGlyph::paint(QPainter& painter) {
    const double ratio = painter.device()->devicePixelRatioF();
    const auto toPixels = painter.transform() * QTransform::fromScale(ratio, ratio);
    const QRectF symbol = toPixels.mapRect(boundingRect());
    painter.setTransform(QTransform::fromScale(1 / ratio, 1 / ratio));
    const double opacity = painter.opacity();
    for (int i = 0; i < barCount; ++i) {
        const QRect bar = barRect(i, symbol);
        QImage& picture = bars_[static_cast<std::size_t>(i)];
        if (picture.size() != bar.size())
            picture = barPicture(bar.size());
        painter.setOpacity(active_ ? opacity * strength(i, step_) / 255 : opacity);
        painter.drawImage(bar.topLeft(), picture);
    }
}

void WaveformGlyph::timerEvent(QTimerEvent* /*event*/) {
    setStep(step_ + 1);
}

void WaveformGlyph::visibilityChanged() {
    updateTimer();
}

void WaveformGlyph::updateTimer() {
    if (!active_ || !isVisible())
        steps_.stop();
    else if (!steps_.isActive())
        steps_.start(stepMs, Qt::CoarseTimer, this);
}

} // namespace brellowind
