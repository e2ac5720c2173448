#include "platform/qt/GzipStream.h"

#include <array>

namespace brellowind::platform {
namespace {

constexpr int onlyGzip = MAX_WBITS + 16; // as zlib wants it: not zlib's own format

} // namespace

GzipStream::GzipStream() {
    inflateInit2(&stream_, onlyGzip); // without memory every piece is broken
}

GzipStream::~GzipStream() {
    inflateEnd(&stream_);
}

GzipStream::Result GzipStream::unpack(std::string_view piece, std::string& body,
                                      std::size_t limit) {
    std::array<char, 16384> unpacked;
    stream_.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(piece.data())); // only read
    stream_.avail_in = static_cast<uInt>(piece.size());
    bool isMore = stream_.avail_in > 0;
    while (isMore) {
        if (isWhole_)
            inflateReset(&stream_); // another member begins
        stream_.next_out = reinterpret_cast<Bytef*>(unpacked.data());
        stream_.avail_out = unpacked.size();
        const int status = inflate(&stream_, Z_NO_FLUSH);
        const bool isOutOfInput = status == Z_BUF_ERROR;
        if (status != Z_OK && status != Z_STREAM_END && !isOutOfInput)
            return Result::broken;
        const std::size_t count = unpacked.size() - stream_.avail_out;
        if (count > limit - body.size())
            return Result::tooLong;
        body.append(unpacked.data(), count);
        isWhole_ = status == Z_STREAM_END;
        isMore = stream_.avail_in > 0 || (stream_.avail_out == 0 && !isWhole_);
    }
    return Result::unpacked;
}

} // namespace brellowind::platform
