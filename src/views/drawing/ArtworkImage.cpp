// SPDX-License-Identifier: MIT

#include "views/drawing/ArtworkImage.h"

#include <QPainter>
#include <algorithm>

namespace brellowind {
namespace {

/// The square for a square image that covers `size`, centred.
QRectF fillingSquare(QSizeF size) {
    const double side = std::max(size.width(), size.height());
    return {(size.width() - side) / 2, (size.height() - side) / 2, side, side};
}

} // namespace

ArtworkImage::ArtworkImage(Item* parent) : PainterItem(parent) {}

void ArtworkImage::setImage(const QImage& image) {
    if (image.cacheKey() == cover_.image().cacheKey())
        return;
    cover_ = CoverImage(image);
    update();
}

void ArtworkImage::setRadius(double radius) {
    if (radius == radius_)
        return;
    radius_ = radius;
    update();
}

void ArtworkImage::paint(QPainter& painter) {
    const QRectF square = fillingSquare(size());
    painter.setPen(Qt::NoPen);
    painter.setBrush(cover_.isNull() ? QBrush(coverPlaceholder)
                                     : cover_.brush(square, square.width() * pixelRatio()));
    painter.drawRoundedRect(boundingRect(), radius_, radius_);
}

} // namespace brellowind
