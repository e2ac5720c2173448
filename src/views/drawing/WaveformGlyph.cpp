#include "views/drawing/WaveformGlyph.h"

#include <QPainter>
#include <QTimerEvent>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace brellowind {
namespace {

constexpr int stepMs = 100;
constexpr int stepsInARound = 15;

/// Of the height of the symbol.
constexpr std::array<double, WaveformGlyph::barCount> heights{0.36, 0.74, 1, 0.56, 0.28};
constexpr double barWidth = 2; ///< of 16
constexpr double gapWidth = 1; ///< with bars on whole points, which keeps them sharp
constexpr double faintest = 0.35;

double phase(int step) {
    return static_cast<double>(step) / stepsInARound;
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
        if (strength(i, phase(step)) != strength(i, phase(before)))
            return update();
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
    const double ratio = painter.device()->devicePixelRatioF();
    if (bars_.devicePixelRatio() != ratio || bars_.deviceIndependentSize() != size())
        bars_ = paintedBars(ratio);
    painter.drawImage(QPointF(0, 0), active_ ? wave(phase(step_)) : bars_);
}

/// The bars, each at its strength. Their pixels are white and premultiplied: all channels equal.
QImage WaveformGlyph::wave(double phase) const {
    const double ratio = bars_.devicePixelRatio();
    QImage image(bars_.size(), bars_.format());
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    for (int i = 0; i < barCount; ++i) {
        const auto opacity = static_cast<unsigned>(std::lround(255 * strength(i, phase)));
        const QRectF rect = column(i);
        const int left = static_cast<int>(std::floor(rect.left() * ratio));
        const int right = static_cast<int>(std::ceil(rect.right() * ratio));
        for (int y = 0; y < image.height(); ++y) {
            const auto* from = reinterpret_cast<const QRgb*>(bars_.constScanLine(y));
            auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
            for (int x = left; x < right; ++x)
                to[x] = ((from[x] >> 24) * opacity + 127) / 255 * 0x01010101U;
        }
    }
    return image;
}

/// The room of one bar, from top to bottom.
QRectF WaveformGlyph::column(int index) const {
    const double unit = width() / 16;
    const double pitch = (barWidth + gapWidth) * unit;
    const double left = (width() - (barCount - 1) * pitch - barWidth * unit) / 2;
    return {left + index * pitch, 0, barWidth * unit, height()};
}

QImage WaveformGlyph::paintedBars(double ratio) const {
    QImage image((size() * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    for (int i = 0; i < barCount; ++i) {
        QRectF bar = column(i);
        const double shorter = bar.height() * (1 - heights[static_cast<std::size_t>(i)]) / 2;
        bar.adjust(0, shorter, 0, -shorter);
        painter.drawRoundedRect(bar, bar.width() / 2, bar.width() / 2);
    }
    return image;
}

void WaveformGlyph::timerEvent(QTimerEvent* event) {
    if (event->timerId() != steps_.timerId()) {
        PainterItem::timerEvent(event);
        return;
    }
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
