#pragma once

#include <memory>
#include <string_view>

namespace brellowind::platform {

/// A decoded image. What it holds is known to the implementation that decoded it alone.
class Image {
public:
    virtual ~Image() = default;
};

/// Decodes images that come from outside.
class ImageDecoder {
public:
    virtual ~ImageDecoder() = default;

    /// The middle square of the image that `bytes` encode, scaled down to what is sharp when it is
    /// drawn with sides of up to `largestPoints`. Null when they encode no image, or one that would
    /// take too much memory to decode.
    virtual std::shared_ptr<const Image> decode(std::string_view bytes, int largestPoints) = 0;
};

} // namespace brellowind::platform
