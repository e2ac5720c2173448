#pragma once

#include <QBrush>
#include <QColor>
#include <QImage>
#include <QRectF>
#include <vector>

namespace brellowind {

/// What is seen where a cover is missing.
inline const QColor coverPlaceholder = QColor::fromRgbF(0.11F, 0.11F, 0.11F);

/// A square image that is drawn at many sizes: it keeps copies of itself, each half as large as the
/// one before, so that a thumbnail is as smooth as the whole.
class CoverImage {
public:
    CoverImage() = default;
    explicit CoverImage(const QImage& image);

    bool isNull() const { return levels_.empty(); }

    /// The smallest copy that is at least `pixels` wide.
    const QImage& atLeast(double pixels) const;

    /// A brush that fills `square` with the image; `pixels` is how wide that is on the screen.
    QBrush brush(const QRectF& square, double pixels) const;

private:
    std::vector<QImage> levels_; ///< the largest first
};

/// A brush that fills `square` with the whole of `image`.
QBrush imageBrush(const QImage& image, const QRectF& square);

} // namespace brellowind
