#pragma once

#include "platform/Images.h"

#include <QImage>

namespace brellowind::platform {

/// An image that Qt has decoded.
class QtImage final : public Image {
public:
    explicit QtImage(QImage decoded) : image(std::move(decoded)) {}

    const QImage image;
};

/// Decodes JPEG, PNG and WebP.
class QtImageDecoder final : public ImageDecoder {
public:
    /// An image that would need more memory than this to decode is refused.
    static constexpr qint64 maximumDecodedBytes = 64 * 1024 * 1024;

    QtImageDecoder();

    /// The sharpest of the screens that are there decides how many pixels a point has.
    std::shared_ptr<const Image> decode(std::string_view bytes, int largestPoints) override;
};

} // namespace brellowind::platform
