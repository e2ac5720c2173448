// SPDX-License-Identifier: MIT

#include "Fuzz.h"
#include "platform/qt/QtImageDecoder.h"

#include <QGuiApplication>

// Arbitrary bytes as a cover.

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);

namespace brellowind::fuzz {
namespace {

constexpr int largestSide = 320;

void requireCover(const QImage& image) {
    require(!image.isNull(), "an image has pixels");
    require(image.width() == image.height(), "a cover is square");
    require(image.width() <= largestSide, "no cover is larger than it is drawn");
    require(image.format() == QImage::Format_RGB32 ||
                image.format() == QImage::Format_ARGB32_Premultiplied,
            "a cover is of a format that is drawn quickly");
}

} // namespace
} // namespace brellowind::fuzz

int LLVMFuzzerInitialize(int* argc, char*** argv) {
    // The decoders would flood the log.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    qputenv("QT_QPA_PLATFORM", "minimal");
    static QGuiApplication application(*argc, *argv);
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brellowind;
    static platform::QtImageDecoder decoder;
    if (const auto image = decoder.decode(fuzz::text(data, size), fuzz::largestSide))
        fuzz::requireCover(dynamic_cast<const platform::QtImage&>(*image).image);
    return 0;
}
