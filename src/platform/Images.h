// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string_view>

namespace brellowind::platform {

/// A decoded image, opaque to all but the implementation that decoded it.
class Image {
public:
    virtual ~Image() = default;
};

/// Decodes untrusted images.
class ImageDecoder {
public:
    virtual ~ImageDecoder() = default;

    /// The centre square of the image that `bytes` encode, scaled down to the resolution needed for
    /// drawing it with sides of at most `largestPoints`. Null if `bytes` are no image, or decoding
    /// it would take too much memory.
    virtual std::shared_ptr<const Image> decode(std::string_view bytes, int largestPoints) = 0;
};

} // namespace brellowind::platform
