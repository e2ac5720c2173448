#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <zlib.h>

namespace brellowind::platform {

/// Unpacks a gzip file (RFC 1952) piece by piece: one member after another and nothing else.
class GzipStream {
public:
    enum class Result {
        unpacked,
        tooLong, ///< than the limit
        broken,  ///< no gzip file
    };

    GzipStream();
    GzipStream(const GzipStream&) = delete;
    GzipStream& operator=(const GzipStream&) = delete;
    ~GzipStream();

    /// Appends what the next piece of the file unpacks to to `body`, which never grows beyond
    /// `limit`. After another result than `unpacked` the stream is of no use.
    Result unpack(std::string_view piece, std::string& body, std::size_t limit);

    /// Whether the file may end here: behind a whole member, or before the first one.
    bool isWhole() const { return isWhole_; }

private:
    z_stream stream_{};
    bool isWhole_ = true;
};

} // namespace brellowind::platform
