// SPDX-License-Identifier: MIT

#include "faults/AnimatedImages.h"
#include "faults/HostileAnswers.h"
#include "faults/HostileServer.h"
#include "faults/NetworkMachine.h"
#include "platform/qt/QtImageDecoder.h"
#include "session/EventLoop.h"
#include "session/ProcessUse.h"
#include "views/Artwork.h"

#include <QBuffer>
#include <QImage>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace brellowind {
namespace {

using namespace std::chrono_literals;
using demo::Exchange;
using test::HostileServer;
using test::ProcessUse;
namespace hostile = test::hostile;

/// The maximum memory for decoding: the limits of the file and of the pixels.
constexpr qint64 memoryLimitKiB = (test::isInstrumented ? 512 : 96) * 1024;

QByteArray encoded(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format));
    return bytes;
}

QByteArray picture(const char* format, int side = 100,
                   QImage::Format pixels = QImage::Format_RGB32) {
    QImage image(side, side, pixels);
    image.fill(Qt::red);
    return encoded(image, format);
}

/// A CMYK JPEG of 16 × 16 red pixels.
QByteArray printedPicture() {
    return QByteArray::fromBase64(
        "/9j/7gAOQWRvYmUAZAAAAAAC/9sAQwAQCwwODAoQDg0OEhEQExgoGhgWFhgxIyUdKDozPTw5Mzg3QEhcTkBEV0U3"
        "OFBtUVdfYmdoZz5NcXlwZHhcZWdj/9sAQwEREhIYFRgvGhovY0I4QmNjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2Nj"
        "Y2NjY2NjY2NjY2NjY2NjY2NjY2NjY2Nj/8AAFAgAEAAQBAEiAAIRAQMRAQQiAP/EABYAAQEBAAAAAAAAAAAAAAAA"
        "AAAFB//EABQQAQAAAAAAAAAAAAAAAAAAAAD/xAAVAQEBAAAAAAAAAAAAAAAAAAAFBv/EABQRAQAAAAAAAAAAAAAA"
        "AAAAAAD/2gAOBAEAAhEDEQQAAD8AtAFEG0AB/9k=");
}

/// A GIF of two frames of one pixel.
QByteArray animation() {
    const QByteArray frame("\x2C\x00\x00\x00\x00\x01\x00\x01\x00\x00\x02\x02\x44\x01\x00", 15);
    return QByteArray("GIF89a\x01\x00\x01\x00\x80\x00\x00\xFF\xFF\xFF\x00\x00\x00", 19) + frame +
           frame + ';';
}

struct Row {
    const char* name;
    bool shown;
    HostileServer::Handler handler;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class HostileImage : public testing::TestWithParam<Row> {
protected:
    HostileServer server{[good = picture("png")](const Exchange& exchange) {
        if (exchange.path == "/good")
            exchange.respond(200, good, "image/png");
        else
            GetParam().handler(exchange);
    }};
    platform::QtImageDecoder decoder;
    test::NetworkMachine machine{server.origin()};
    std::shared_ptr<Artwork> artwork =
        std::make_shared<Artwork>(machine.tasks, machine.http, machine.standIns.files, decoder);

    /// Loads the image at `path` and waits for the end. Returns whether there is an image.
    bool shows(const char* path) {
        artwork->load(std::nullopt);
        artwork->load((server.origin() + QLatin1String(path)).toStdString());
        EXPECT_TRUE(test::waitUntil([this] { return machine.tasks.running() == 0; }));
        return artwork->image.get() != nullptr;
    }
};

TEST_P(HostileImage, IsShownOrLeftAloneWithinItsMemoryAndTheNextIsShown) {
    machine.http.patience = 500ms;
    const ProcessUse use;
    use.forgetPeakMemory();
    const qint64 before = use.peakMemoryKiB();
    EXPECT_EQ(shows("/hostile"), GetParam().shown);
    EXPECT_LT(use.peakMemoryKiB() - before, memoryLimitKiB);
    machine.http.patience = 60s;
    EXPECT_TRUE(shows("/good"));
}

Row file(const char* name, bool shown, const QByteArray& bytes,
         const QByteArray& type = "image/png") {
    return {name, shown, [=](const Exchange& exchange) { exchange.respond(200, bytes, type); }};
}

const std::vector<Row>& rows() {
    static const QByteArray png = picture("png");
    static const QByteArray webp = picture("webp");
    static const std::vector<Row> all{
        file("ZeroBytes", false, {}),
        file("TruncatedPng", false, png.left(60)),
        file("TruncatedWebp", false, picture("webp").left(40), "image/webp"),
        file("TruncatedJpegInItsHead", false, picture("jpeg").left(100), "image/jpeg"),
        file("OfAnotherContentType", true, png, "text/html"),
        file("SixteenBits", true, picture("png", 100, QImage::Format_RGBA64)),
        file("SixteenBitsBeyondTheLimit", false, picture("png", 2900, QImage::Format_RGBA64)),
        file("PixelsUpToTheLimit", true, picture("png", 4096, QImage::Format_Mono)),
        file("PixelsBeyondTheLimit", false, picture("png", 4097, QImage::Format_Mono)),
        file("PixelsFarBeyondTheLimit", false, picture("png", 9'000, QImage::Format_Mono)),
        file("ColoursOfAPrinter", true, printedPicture(), "image/jpeg"),
        file("Animation", false, animation(), "image/gif"),
        file("AnimatedPng", true, hostile::animatedPng(png, {100, 100}, 1000)),
        file("AnimatedWebp", true, hostile::animatedWebp(webp, {100, 100}, 1000, {100, 100}),
             "image/webp"),
        file("AnimatedWebpUpToTheLimit", true,
             hostile::animatedWebp(webp, {100, 100}, 2, {2896, 2896}), "image/webp"),
        file("AnimatedWebpBeyondTheLimit", false,
             hostile::animatedWebp(webp, {100, 100}, 2, {2897, 2897}), "image/webp"),
        file("AnimatedWebpOfOneFrameBeyondTheLimit", false,
             hostile::animatedWebp(webp, {100, 100}, 1, {4096, 4096}), "image/webp"),
        file("AnimatedWebpWithoutFrames", false,
             hostile::animatedWebp(webp, {100, 100}, 0, {100, 100}), "image/webp"),
        file("Svg", false,
             R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"><rect/></svg>)",
             "image/svg+xml"),
        file("Html", false, "<!DOCTYPE html><title>Not found</title>", "image/png"),
        file("Bitmap", false, picture("bmp")),
        {"ErrorPageThatIsAnImage", true,
         [](const Exchange& e) { e.respond(404, png, "image/png"); }},
        {"LongerThanSixteenMebibytes", false,
         [](const Exchange& e) {
             hostile::begin(e, "Content-Type: image/png\r\n", png);
             hostile::pour(e, QByteArray(1'000'000, '\0'));
         }},
        {"CutOffByTheServer", false,
         [](const Exchange& e) { hostile::answer(e, "Content-Length: 100000\r\n", png); }},
        {"TooSlow", false,
         [](const Exchange& e) {
             hostile::begin(e, "Content-Length: 100000\r\n", png);
             hostile::drip(e, '\0');
         }},
        {"BrotliBomb", false,
         [](const Exchange& e) {
             hostile::answer(e, "Content-Encoding: br\r\n", hostile::brotliBomb());
         }},
        {"SaidToBeCompressed", false,
         [](const Exchange& e) { hostile::answer(e, "Content-Encoding: gzip\r\n", png); }},
        {"Redirected", true, [](const Exchange& e) { hostile::redirect(e, "/good"); }},
        {"RedirectedForEver", false, [](const Exchange& e) { hostile::redirect(e, "/hostile"); }},
        {"RedirectedToAFile", false,
         [](const Exchange& e) { hostile::redirect(e, "file:///usr/share/pixmaps/x.png"); }},
    };
    return all;
}

INSTANTIATE_TEST_SUITE_P(Answer, HostileImage, testing::ValuesIn(rows()),
                         [](const auto& parameter) { return std::string(parameter.param.name); });

} // namespace
} // namespace brellowind
