#include "views/drawing/WaveformGlyph.h"

#include <QPainter>
#include <QTimerEvent>
#include <array>
#include <cmath>
#include <numbers>

namespace brellowind {
namespace {

constexpr int stepMs = 100;
constexpr int stepsInARound = 15;

/// Of the height of the symbol.
constexpr std::array<double, WaveformGlyph::barCount> heights{0.36, 0.74, 1, 0.56, 0.28};
constexpr double barWidth = 2; ///< of 16
constexpr double gapWidth = 1; ///< with bars on whole points, which keeps them sharp
constexpr double faintest = 0.35;

} // namespace

WaveformGlyph::WaveformGlyph(QQuickItem* parent) : PainterItem(parent) {}

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
    step_ = step;
    update();
}

double WaveformGlyph::strength(int index, double phase) {
    // The wave is one bar wide to each side and has left the symbol for a while in every round.
    const double crest = phase * (barCount + 3) - 1.5;
    const double distance = std::abs(crest - index);
    if (distance >= 1.5)
        return faintest;
    return faintest + (1 - faintest) * (0.5 + 0.5 * std::cos(std::numbers::pi * distance / 1.5));
}

void WaveformGlyph::paint(QPainter& painter) {
    const double unit = width() / 16;
    const double bar = barWidth * unit;
    const double pitch = (barWidth + gapWidth) * unit;
    const double left = (width() - (barCount - 1) * pitch - bar) / 2;
    const double phase = static_cast<double>(step_) / stepsInARound;
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < barCount; ++i) {
        const double barHeight = heights[static_cast<std::size_t>(i)] * height();
        const QRectF rect(left + i * pitch, (height() - barHeight) / 2, bar, barHeight);
        painter.setBrush(
            QColor::fromRgbF(1, 1, 1, static_cast<float>(active_ ? strength(i, phase) : 1)));
        painter.drawRoundedRect(rect, bar / 2, bar / 2);
    }
}

void WaveformGlyph::timerEvent(QTimerEvent* event) {
    if (event->timerId() != steps_.timerId()) {
        PainterItem::timerEvent(event);
        return;
    }
    setStep(step_ + 1);
}

void WaveformGlyph::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemVisibleHasChanged)
        follow();
    PainterItem::itemChange(change, data);
}

void WaveformGlyph::follow() {
    if (!active_ || !isVisible())
        steps_.stop();
    else if (!steps_.isActive())
        steps_.start(stepMs, Qt::CoarseTimer, this);
}

} // namespace brellowind
