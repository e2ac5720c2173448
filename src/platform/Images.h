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

    /// The image that `bytes` encode. Null when they encode none, or one that would take too much
    /// memory to decode.
    virtual std::shared_ptr<const Image> decode(std::string_view bytes) = 0;
};

} // namespace brellowind::platform
