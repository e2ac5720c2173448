// SPDX-License-Identifier: MIT

#include "views/drawing/CoverImage.h"

#include <QTransform>

namespace brellowind {
namespace {

constexpr int smallestCopy = 16;

} // namespace

const QImage& CoverImage::atLeast(double pixels) {
    QSize size = image_.size();
    while (size.width() > 2 * smallestCopy && size.width() / 2 >= pixels)
        size /= 2;
    if (copy_.size() != size)
        copy_ = size == image_.size()
                    ? image_
                    : image_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return copy_;
}

QBrush CoverImage::brush(const QRectF& square, double pixels) {
    return imageBrush(atLeast(pixels), square);
}

QBrush imageBrush(const QImage& image, const QRectF& square) {
    QBrush brush(image);
    brush.setTransform(
        QTransform::fromTranslate(square.x(), square.y())
            .scale(square.width() / image.width(), square.height() / image.height()));
    return brush;
}

} // namespace brellowind
