#include "views/drawing/WaveformGlyph.h"

#include <QPainter>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace brellowind {
namespace {

constexpr int stepMs = 100;
constexpr int stepsInARound = 15;

constexpr int barCount = 5;
constexpr std::array<double, barCount> heights{0.36, 0.74, 1, 0.56, 0.28}; ///< of the symbol's
constexpr double barWidth = 2;                                             ///< of 16
constexpr double gapWidth = 1; ///< with bars on whole points, which keeps them sharp
constexpr double faintest = 0.35;

/// The strength of the bar `index` in a step of the wave, which reaches one bar to each side and
/// has left the symbol for a while in every round.
double strength(int index, int step) {
    const double crest = step * (barCount + 3.0) / stepsInARound - 1.5;
    const double distance = std::abs(crest - index);
    if (distance >= 1.5)
        return faintest;
    return faintest + (1 - faintest) * (0.5 + 0.5 * std::cos(std::numbers::pi * distance / 1.5));
}

/// A bar in a symbol of that size.
QRectF barRect(int index, QSizeF symbol) {
    const double unit = symbol.width() / 16;
    const double pitch = (barWidth + gapWidth) * unit;
    const double left = (symbol.width() - (barCount - 1) * pitch - barWidth * unit) / 2;
    const double height = symbol.height() * heights[static_cast<std::size_t>(index)];
    return {left + index * pitch, (symbol.height() - height) / 2, barWidth * unit, height};
}

} // namespace

WaveformGlyph::WaveformGlyph(Item* parent) : PainterItem(parent) {}

void WaveformGlyph::setActive(bool active) {
    if (active == active_)
        return;
    active_ = active;
    follow();
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
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < barCount; ++i) {
        const double opacity = active_ ? strength(i, step_) : 1;
        painter.setBrush(QColor::fromRgbF(1, 1, 1, static_cast<float>(opacity)));
        const QRectF bar = barRect(i, size());
        painter.drawRoundedRect(bar, bar.width() / 2, bar.width() / 2);
    }
}

void WaveformGlyph::timerEvent(QTimerEvent* /*event*/) {
    setStep(step_ + 1);
}

void WaveformGlyph::visibilityChanged() {
    follow();
}

void WaveformGlyph::follow() {
    if (!active_ || !isVisible())
        steps_.stop();
    else if (!steps_.isActive())
        steps_.start(stepMs, Qt::CoarseTimer, this);
}

} // namespace brellowind
