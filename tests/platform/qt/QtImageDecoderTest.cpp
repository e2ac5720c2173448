// SPDX-License-Identifier: MIT

#include "platform/qt/QtImageDecoder.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImageWriter>
#include <QPainter>
#include <cmath>
#include <gtest/gtest.h>

namespace brellowind::platform {
namespace {

constexpr int largestPoints = 320;

/// The largest side of a decoded image, in pixels.
int largestSide() {
    return static_cast<int>(std::ceil(largestPoints * qGuiApp->devicePixelRatio()));
}

/// `width` x `height` pixels: the left quarter red, the right one blue, green between them.
QImage bands(int width, int height, QImage::Format format = QImage::Format_RGB32) {
    QImage image(width, height, format);
    image.fill(Qt::green);
    QPainter painter(&image);
    painter.fillRect(0, 0, width / 4, height, Qt::red);
    painter.fillRect(width - width / 4, 0, width / 4, height, Qt::blue);
    return image;
}

std::string encoded(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(95);
    EXPECT_TRUE(writer.write(image)) << format << ": " << qPrintable(writer.errorString());
    return bytes.toStdString();
}

/// The decoded image of `bytes`; null if rejected.
QImage decoded(std::string_view bytes) {
    QtImageDecoder decoder;
    const auto image = decoder.decode(bytes, largestPoints);
    return image ? dynamic_cast<const QtImage&>(*image).image : QImage();
}

bool isNear(QColor a, QColor b) {
    return std::abs(a.red() - b.red()) < 40 && std::abs(a.green() - b.green()) < 40 &&
           std::abs(a.blue() - b.blue()) < 40;
}

void appendNumber(std::string& to, std::uint32_t number) {
    for (int shift = 24; shift >= 0; shift -= 8)
        to.push_back(static_cast<char>(number >> shift & 0xFF));
}

void appendChunk(std::string& to, const std::string& type, const std::string& data) {
    appendNumber(to, static_cast<std::uint32_t>(data.size()));
    const std::string checked = type + data;
    std::uint32_t remainder = 0xFFFFFFFF;
    for (const char byte : checked) {
        remainder ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            remainder = remainder >> 1 ^ (remainder & 1 ? 0xEDB88320 : 0);
    }
    to += checked;
    appendNumber(to, ~remainder);
}

/// A PNG with a header for this size and almost no data.
std::string pngThatClaims(std::uint32_t width, std::uint32_t height) {
    std::string header;
    appendNumber(header, width);
    appendNumber(header, height);
    header += std::string("\x08\x06\x00\x00\x00", 5); // 8 bits, RGBA
    std::string png("\x89PNG\r\n\x1A\n");
    appendChunk(png, "IHDR", header);
    appendChunk(png, "IDAT", std::string("\x78\x9C\x03\x00\x00\x00\x00\x01", 8));
    appendChunk(png, "IEND", "");
    return png;
}

/// A JPEG with the EXIF orientation of a camera in portrait position.
std::string turned(std::string jpeg) {
    const std::string mark("\xFF\xE1\x00\x22"
                           "Exif\0\0"
                           "II*\0\x08\0\0\0"
                           "\x01\0\x12\x01\x03\0\x01\0\0\0\x06\0\0\0\0\0\0\0",
                           36);
    return jpeg.insert(2, mark);
}

class QtImageDecoderFormat : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Known, QtImageDecoderFormat, testing::Values("jpeg", "png", "webp"),
                         [](const auto& format) { return std::string(format.param); });

TEST_P(QtImageDecoderFormat, IsDecoded) {
    const QImage image = decoded(encoded(bands(100, 100), GetParam()));
    ASSERT_EQ(image.size(), QSize(100, 100));
    EXPECT_TRUE(isNear(image.pixelColor(5, 50), Qt::red));
    EXPECT_TRUE(isNear(image.pixelColor(50, 50), Qt::green));
    EXPECT_TRUE(isNear(image.pixelColor(95, 50), Qt::blue));
}

TEST_P(QtImageDecoderFormat, IsCutToTheSquareInItsMiddle) {
    const QImage wide = decoded(encoded(bands(300, 100), GetParam()));
    ASSERT_EQ(wide.size(), QSize(100, 100));
    for (const QPoint corner : {QPoint(2, 2), QPoint(97, 2), QPoint(2, 97), QPoint(97, 97)})
        EXPECT_TRUE(isNear(wide.pixelColor(corner), Qt::green));
    const QImage high = decoded(encoded(bands(100, 300), GetParam()));
    ASSERT_EQ(high.size(), QSize(100, 100));
    EXPECT_TRUE(isNear(high.pixelColor(5, 50), Qt::red));
}

TEST_P(QtImageDecoderFormat, KeepsASmallImageSmall) {
    for (const int side : {1, 2, 64, largestSide()})
        EXPECT_EQ(decoded(encoded(bands(side, side), GetParam())).size(), QSize(side, side));
}

TEST_P(QtImageDecoderFormat, ScalesALargeImageToTheLargestItIsDrawn) {
    const QSize largest(largestSide(), largestSide());
    EXPECT_EQ(decoded(encoded(bands(1000, 1000), GetParam())).size(), largest);
    EXPECT_EQ(decoded(encoded(bands(1400, 700), GetParam())).size(), largest);
    EXPECT_EQ(decoded(encoded(bands(700, 1401), GetParam())).size(), largest);
    EXPECT_EQ(decoded(encoded(bands(largestSide() + 1, largestSide() + 1), GetParam())).size(),
              largest);
}

TEST_P(QtImageDecoderFormat, ScalesTheWholeAndNotACorner) {
    const QImage image = decoded(encoded(bands(1000, 1000), GetParam()));
    const int side = largestSide();
    EXPECT_TRUE(isNear(image.pixelColor(side / 8, side / 2), Qt::red));
    EXPECT_TRUE(isNear(image.pixelColor(side / 2, side / 2), Qt::green));
    EXPECT_TRUE(isNear(image.pixelColor(side - side / 8, side / 2), Qt::blue));
}

TEST_P(QtImageDecoderFormat, IsRefusedWhenOnlyItsBeginningIsThere) {
    const std::string whole = encoded(bands(100, 100), GetParam());
    for (const std::size_t length : {1U, 8U, 16U, 40U})
        EXPECT_TRUE(decoded(whole.substr(0, length)).isNull()) << length;
}

TEST_P(QtImageDecoderFormat, IsDecodedToAFormatThatIsDrawnFast) {
    const auto format = decoded(encoded(bands(10, 10), GetParam())).format();
    EXPECT_TRUE(format == QImage::Format_RGB32 || format == QImage::Format_ARGB32_Premultiplied);
}

TEST(QtImageDecoder, KeepsTransparency) {
    QImage clear(20, 20, QImage::Format_ARGB32);
    clear.fill(QColor(255, 0, 0, 100));
    for (const char* format : {"png", "webp"}) {
        const QImage image = decoded(encoded(clear, format));
        EXPECT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
        EXPECT_NEAR(image.pixelColor(10, 10).alpha(), 100, 2) << format;
    }
}

TEST(QtImageDecoder, RefusesATruncatedPng) {
    const std::string whole = encoded(bands(200, 200), "png");
    EXPECT_TRUE(decoded(whole.substr(0, 60)).isNull());
}

TEST(QtImageDecoder, RefusesEveryOtherKindOfFile) {
    for (const char* format : {"bmp", "ppm", "xpm"})
        EXPECT_TRUE(decoded(encoded(bands(20, 20), format)).isNull()) << format;
    const std::string gif("GIF89a\x01\x00\x01\x00\x80\x00\x00\xFF\xFF\xFF\x00\x00\x00"
                          "\x2C\x00\x00\x00\x00\x01\x00\x01\x00\x00\x02\x02\x44\x01\x00\x3B",
                          35);
    EXPECT_FALSE(QImage::fromData(QByteArray::fromStdString(gif)).isNull()) << "a real one";
    EXPECT_TRUE(decoded(gif).isNull());
    for (const std::string_view text :
         {R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="20"><rect/></svg>)",
          "<!DOCTYPE html><title>Not found</title>", "just words"})
        EXPECT_TRUE(decoded(text).isNull()) << text;
}

TEST(QtImageDecoder, RefusesNothingAtAll) {
    EXPECT_TRUE(decoded({}).isNull());
    EXPECT_TRUE(decoded(std::string(1000, '\0')).isNull());
}

TEST(QtImageDecoder, RefusesAnImageThatClaimsToBeTooLarge) {
    EXPECT_TRUE(decoded(pngThatClaims(60'000, 60'000)).isNull());
    EXPECT_TRUE(decoded(pngThatClaims(0x7FFFFFFF, 0x7FFFFFFF)).isNull());
    EXPECT_TRUE(decoded(pngThatClaims(1, 0x7FFFFFFF)).isNull());
}

TEST(QtImageDecoder, DecodesSixteenBitsToAColour) {
    const QImage image = decoded(encoded(bands(100, 100, QImage::Format_RGBA64), "png"));
    ASSERT_EQ(image.size(), QSize(100, 100));
    EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::green));
}

TEST(QtImageDecoder, DecodesGreyAndIndexedImages) {
    for (const auto format :
         {QImage::Format_Grayscale8, QImage::Format_Mono, QImage::Format_Indexed8}) {
        const QImage source = bands(50, 50).convertToFormat(format);
        EXPECT_EQ(decoded(encoded(source, "png")).size(), QSize(50, 50)) << format;
    }
}

TEST(QtImageDecoder, TurnsAPhotographAsItWasTaken) {
    // Turned to the right, what was at the left is at the top.
    const QImage image = decoded(turned(encoded(bands(100, 100), "jpeg")));
    ASSERT_EQ(image.size(), QSize(100, 100));
    EXPECT_TRUE(isNear(image.pixelColor(50, 5), Qt::red));
    EXPECT_TRUE(isNear(image.pixelColor(50, 95), Qt::blue));
}

TEST(QtImageDecoder, ScalesATurnedPhotographToTheSameSize) {
    EXPECT_EQ(decoded(turned(encoded(bands(1400, 700), "jpeg"))).size(),
              QSize(largestSide(), largestSide()));
}

} // namespace
} // namespace brellowind::platform
