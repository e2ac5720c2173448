// SPDX-License-Identifier: MIT

#include "views/drawing/VisualEffectBlur.h"

#include "views/drawing/Blur.h"
#include "views/drawing/CoverImage.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace brellowind {
namespace {

constexpr int blurredSide = 80;
constexpr double sigma = 0.05 * blurredSide;

/// A dark, translucent tint. On a white cover it is dark enough for white text at 75 % opacity.
const QColor material(28, 28, 30, 165);
const QColor dimming(0, 0, 0, 51); ///< black at 0.2

QImage blurredCover(const QImage& image) {
    if (image.isNull())
        return {};
    QImage small = image
                       .scaled(blurredSide, blurredSide, Qt::KeepAspectRatioByExpanding,
                               Qt::SmoothTransformation)
                       .copy(0, 0, blurredSide, blurredSide);
    // With a border that extends the cover, so that the edges do not fade.
    constexpr int frame = blurredSide / 4;
    QImage framed(blurredSide + 2 * frame, blurredSide + 2 * frame,
                  QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < framed.height(); ++y)
        for (int x = 0; x < framed.width(); ++x)
            framed.setPixel(x, y,
                            small.pixel(std::clamp(x - frame, 0, blurredSide - 1),
                                        std::clamp(y - frame, 0, blurredSide - 1)));
    blur(framed, sigma);
    return framed.copy(frame, frame, blurredSide, blurredSide);
}

} // namespace

VisualEffectBlur::VisualEffectBlur(double coverSide, double radius, Item* parent)
    : PainterItem(parent), coverSide_(coverSide), radius_(radius) {}

void VisualEffectBlur::setImage(const QImage& image) {
    if (image.cacheKey() == image_.cacheKey())
        return;
    image_ = image;
    blurred_ = QImage();
    update();
}

void VisualEffectBlur::paint(QPainter& painter) {
    if (blurred_.isNull())
        blurred_ = blurredCover(image_);
    const QRectF rect = boundingRect();
    QPainterPath shape;
    shape.moveTo(rect.topLeft());
    shape.lineTo(rect.topRight());
    shape.lineTo(rect.right(), rect.bottom() - radius_);
    shape.arcTo(rect.right() - 2 * radius_, rect.bottom() - 2 * radius_, 2 * radius_, 2 * radius_,
                0, -90);
    shape.lineTo(rect.left() + radius_, rect.bottom());
    shape.arcTo(rect.left(), rect.bottom() - 2 * radius_, 2 * radius_, 2 * radius_, 270, -90);
    shape.closeSubpath();
    const QRectF cover(0, rect.bottom() - coverSide_, coverSide_, coverSide_);
    painter.fillPath(shape,
                     blurred_.isNull() ? QBrush(coverPlaceholder) : imageBrush(blurred_, cover));
    painter.fillPath(shape, material);
    painter.fillPath(shape, dimming);
}

} // namespace brellowind
