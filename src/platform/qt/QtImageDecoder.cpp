// SPDX-License-Identifier: MIT

#include "platform/qt/QtImageDecoder.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImageReader>
#include <QPixelFormat>
#include <algorithm>
#include <cmath>

namespace brellowind::platform {
namespace {

/// Qt's name of the format of `bytes`; empty if not supported. Detection by Qt would load the
/// plugins of all formats.
QByteArray formatOf(std::string_view bytes) {
    using namespace std::string_view_literals;
    if (bytes.starts_with("\xFF\xD8\xFF"sv))
        return "jpeg";
    if (bytes.starts_with("\x89PNG\r\n\x1A\n"sv))
        return "png";
    if (bytes.starts_with("RIFF"sv) && bytes.size() >= 12 && bytes.substr(8, 4) == "WEBP"sv)
        return "webp";
    return {};
}

/// Whether a WebP file is animated.
bool isAnimation(std::string_view bytes) {
    using namespace std::string_view_literals;
    constexpr std::size_t extension = 12;
    constexpr std::size_t flags = 20;
    constexpr char moves = 1 << 1;
    return bytes.starts_with("RIFF"sv) && bytes.size() > flags &&
           bytes.substr(extension, 4) == "VP8X"sv && (bytes[flags] & moves) != 0;
}

/// Peak memory of decoding. Animation frames are composed on a canvas, which is then copied.
qint64 decodedBytes(const QImageReader& reader, bool isAnimation) {
    const QSize size = reader.size();
    int bits = 32;
    if (reader.imageFormat() != QImage::Format_Invalid)
        bits = std::max<int>(bits, QImage::toPixelFormat(reader.imageFormat()).bitsPerPixel());
    const int copies = isAnimation ? 2 : 1;
    return static_cast<qint64>(size.width()) * size.height() * bits / 8 * copies;
}

QRect middleSquare(QSize size) {
    const int side = std::min(size.width(), size.height());
    return {(size.width() - side) / 2, (size.height() - side) / 2, side, side};
}

} // namespace

QtImageDecoder::QtImageDecoder() {
    QImageReader::setAllocationLimit(maximumDecodedBytes / (1024 * 1024));
}

std::shared_ptr<const Image> QtImageDecoder::decode(std::string_view bytes, int largestPoints) {
    const QByteArray format = formatOf(bytes);
    if (format.isEmpty())
        return nullptr;
    auto data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.isEmpty() || decodedBytes(reader, isAnimation(bytes)) > maximumDecodedBytes)
        return nullptr;
    const int side = static_cast<int>(std::ceil(largestPoints * qGuiApp->devicePixelRatio()));
    const double scale = static_cast<double>(side) / std::min(size.width(), size.height());
    if (scale < 1)
        reader.setScaledSize((QSizeF(size) * scale).toSize().expandedTo({1, 1}));
    QImage image = reader.read();
    if (image.isNull())
        return nullptr;
    image = image.copy(middleSquare(image.size()));
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                            : QImage::Format_RGB32);
    return std::make_shared<QtImage>(std::move(image));
}

} // namespace brellowind::platform
