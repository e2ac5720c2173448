// SPDX-License-Identifier: MIT

#pragma once

#include <QBrush>
#include <QColor>
#include <QImage>
#include <QRectF>

namespace brellowind {

/// The colour in place of a missing cover.
inline const QColor coverPlaceholder = QColor::fromRgbF(0.11F, 0.11F, 0.11F);

/// A square image with mipmaps, for smooth drawing at all sizes. Keeps the level that was used
/// last.
class CoverImage {
public:
    CoverImage() = default;
    explicit CoverImage(const QImage& image) : image_(image), copy_(image) {}

    bool isNull() const { return image_.isNull(); }

    const QImage& image() const { return image_; }

    /// The smallest level that is at least `pixels` wide.
    const QImage& atLeast(double pixels);

    /// A brush that fills `square`, which is `pixels` wide on the screen, with the image.
    QBrush brush(const QRectF& square, double pixels);

private:
    QImage image_;
    QImage copy_;
};

/// A brush that fills `square` with `image`.
QBrush imageBrush(const QImage& image, const QRectF& square);

} // namespace brellowind
