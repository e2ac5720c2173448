#include "views/drawing/CoverImage.h"

#include <QTransform>

namespace brellowind {
namespace {

constexpr int smallestLevel = 16;

} // namespace

CoverImage::CoverImage(const QImage& image) {
    if (image.isNull())
        return;
    levels_.push_back(image);
    while (levels_.back().width() > 2 * smallestLevel)
        levels_.push_back(levels_.back().scaled(levels_.back().size() / 2, Qt::IgnoreAspectRatio,
                                                Qt::SmoothTransformation));
}

const QImage& CoverImage::atLeast(double pixels) const {
    auto level = levels_.begin();
    while (level + 1 != levels_.end() && (level + 1)->width() >= pixels)
        ++level;
    return *level;
}

QBrush CoverImage::brush(const QRectF& square, double pixels) const {
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
