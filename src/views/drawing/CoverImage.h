#pragma once

#include <QBrush>
#include <QColor>
#include <QImage>
#include <QRectF>

namespace brellowind {

/// What is seen where a cover is missing.
inline const QColor coverPlaceholder = QColor::fromRgbF(0.11F, 0.11F, 0.11F);

/// A square image that is drawn at many sizes: from copies of itself, each half as large as the one
/// before, so that a thumbnail is as smooth as the whole. It keeps the copy that was wanted last.
class CoverImage {
public:
    CoverImage() = default;
    explicit CoverImage(const QImage& image) : image_(image), copy_(image) {}

    bool isNull() const { return image_.isNull(); }

    const QImage& image() const { return image_; }

    /// The smallest copy that is at least `pixels` wide.
    const QImage& atLeast(double pixels);

    /// A brush that fills `square` with the image; `pixels` is how wide that is on the screen.
    QBrush brush(const QRectF& square, double pixels);

private:
    QImage image_;
    QImage copy_;
};

/// A brush that fills `square` with the whole of `image`.
QBrush imageBrush(const QImage& image, const QRectF& square);

} // namespace brellowind
