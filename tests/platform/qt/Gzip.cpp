#include "platform/qt/Gzip.h"

#include <zlib.h>

namespace brellowind::test {

QByteArray gzip(const QByteArray& body) {
    constexpr int gzipFormat = 16;
    constexpr int usualMemory = 8;
    z_stream stream{};
    deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, MAX_WBITS + gzipFormat, usualMemory, Z_RLE);
    QByteArray packed(
        static_cast<qsizetype>(deflateBound(&stream, static_cast<uLong>(body.size()))),
        Qt::Uninitialized);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(body.data()));
    stream.avail_in = static_cast<uInt>(body.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    deflate(&stream, Z_FINISH);
    packed.resize(static_cast<qsizetype>(stream.total_out));
    deflateEnd(&stream);
    return packed;
}

} // namespace brellowind::test
