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
#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <utility>
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

QByteArray png() {
    return picture("png");
}

QByteArray webp() {
    return picture("webp");
}

struct Row {
    const char* name;
    bool shown;
    std::function<QByteArray()> bytes; ///< made by the one test that needs them
    std::function<void(const Exchange&, const QByteArray& bytes)> answer;
    std::chrono::milliseconds patience = 60s;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class HostileImage : public testing::TestWithParam<Row> {
protected:
    HostileServer server{[good = png(), bytes = GetParam().bytes()](const Exchange& exchange) {
        if (exchange.path == "/good")
            exchange.respond(200, good, "image/png");
        else
            GetParam().answer(exchange, bytes);
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
    machine.http.patience = GetParam().patience;
    const ProcessUse use;
    use.forgetPeakMemory();
    const qint64 before = use.peakMemoryKiB();
    EXPECT_EQ(shows("/hostile"), GetParam().shown);
    EXPECT_LT(use.peakMemoryKiB() - before, memoryLimitKiB);
    machine.http.patience = 60s;
    EXPECT_TRUE(shows("/good"));
}

Row file(const char* name, bool shown, std::function<QByteArray()> bytes,
         const QByteArray& type = "image/png") {
    return {name, shown, std::move(bytes),
            [type](const Exchange& e, const QByteArray& sent) { e.respond(200, sent, type); }};
}

Row redirect(const char* name, bool shown, const QByteArray& location) {
    return {name, shown, png,
            [location](const Exchange& e, const QByteArray&) { hostile::redirect(e, location); }};
}

std::function<QByteArray()> animated(int frames, int side) {
    return [=] { return hostile::animatedWebp(webp(), {100, 100}, frames, {side, side}); };
}

const std::vector<Row> rows{
    file(
        "TruncatedJpegInItsHead", false, [] { return picture("jpeg").left(100); }, "image/jpeg"),
    file("OfAnotherContentType", true, png, "text/html"),
    file("SixteenBitsBeyondTheLimit", false,
         [] { return picture("png", 2900, QImage::Format_RGBA64); }),
    file("PixelsUpToTheLimit", true, [] { return picture("png", 4096, QImage::Format_Mono); }),
    file("PixelsBeyondTheLimit", false, [] { return picture("png", 4097, QImage::Format_Mono); }),
    file("PixelsFarBeyondTheLimit", false,
         [] { return picture("png", 9'000, QImage::Format_Mono); }),
    file("ColoursOfAPrinter", true, printedPicture, "image/jpeg"),
    file("Animation", false, animation, "image/gif"),
    file("AnimatedPng", true,
         [] {
             return hostile::animatedPng(png(), {100, 100}, 1000);
         }),
    file("AnimatedWebp", true, animated(1000, 100), "image/webp"),
    file("AnimatedWebpUpToTheLimit", true, animated(2, 2896), "image/webp"),
    file("AnimatedWebpBeyondTheLimit", false, animated(2, 2897), "image/webp"),
    file("AnimatedWebpOfOneFrameBeyondTheLimit", false, animated(1, 4096), "image/webp"),
    file("AnimatedWebpWithoutFrames", false, animated(0, 100), "image/webp"),
    {"ErrorPageThatIsAnImage", true, png,
     [](const Exchange& e, const QByteArray& sent) { e.respond(404, sent, "image/png"); }},
    {"LongerThanSixteenMebibytes", false, png,
     [](const Exchange& e, const QByteArray& sent) {
         hostile::begin(e, "Content-Type: image/png\r\n", sent);
         hostile::pour(e, QByteArray(1'000'000, '\0'));
     }},
    {"CutOffByTheServer", false, png,
     [](const Exchange& e, const QByteArray& sent) {
         hostile::answer(e, "Content-Length: 100000\r\n", sent);
     }},
    {"TooSlow", false, png,
     [](const Exchange& e, const QByteArray& sent) {
         hostile::begin(e, "Content-Length: 100000\r\n", sent);
         hostile::drip(e, '\0');
     },
     150ms},
    {"BrotliBomb", false, hostile::brotliBomb,
     [](const Exchange& e, const QByteArray& sent) {
         hostile::answer(e, "Content-Encoding: br\r\n", sent);
     }},
    {"SaidToBeCompressed", false, png,
     [](const Exchange& e, const QByteArray& sent) {
         hostile::answer(e, "Content-Encoding: gzip\r\n", sent);
     }},
    redirect("Redirected", true, "/good"),
    redirect("RedirectedForEver", false, "/hostile"),
    redirect("RedirectedToAFile", false, "file:///usr/share/pixmaps/x.png"),
};

INSTANTIATE_TEST_SUITE_P(Answer, HostileImage, testing::ValuesIn(rows),
                         [](const auto& parameter) { return std::string(parameter.param.name); });

} // namespace
} // namespace brellowind
