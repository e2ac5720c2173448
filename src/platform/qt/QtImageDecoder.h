// SPDX-License-Identifier: MIT

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
    /// Images that need more memory than this for decoding are rejected.
    static constexpr qint64 maximumDecodedBytes = 64 * 1024 * 1024;

    QtImageDecoder();

    /// Uses the scale of the connected screen with the highest density.
    std::shared_ptr<const Image> decode(std::string_view bytes, int largestPoints) override;
};

} // namespace brellowind::platform
