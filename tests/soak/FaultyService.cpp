// SPDX-License-Identifier: MIT

#include "soak/FaultyService.h"

#include <QBuffer>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

namespace brellowind::test {
namespace {

constexpr int linesPerSecond = 4;
constexpr int lineCount = 60 * linesPerSecond;
constexpr std::chrono::milliseconds lateness{3000};

QByteArray png(int side) {
    QImage image(side, side, QImage::Format_RGB32);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            image.setPixelColor(x, y, QColor::fromHsv((x + side) % 360, 255 - y % 128, 200));
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    image.save(&bytes, "png");
    return bytes.data();
}

QString words(const QString& title, int number) {
    return QStringLiteral("%1, line %2").arg(title).arg(number);
}

} // namespace

FaultyService::FaultyService(Chance& chance) : chance_(chance) {
    for (const int side : {1, 64, 300, 320, 640, 1000})
        covers_.append(png(side));
}

void FaultyService::answer(const demo::Exchange& exchange) {
    if (failsNow && chance_.onceIn(4)) {
        ++faults;
        fail(exchange);
    } else if (exchange.path == "/latest.json") {
        ++feeds;
        exchange.respond(200, R"({"version":"99.0","url":"https://downloads.invalid/"})");
    } else if (exchange.path.startsWith("/cover")) {
        ++covers;
        exchange.respond(200, covers_[chance_.below(static_cast<int>(covers_.size()))],
                         "image/png");
    } else {
        ++lyrics;
        exchange.respond(200, lyricsOf(exchange.field(QStringLiteral("track_name"))));
    }
}

QString FaultyService::line(const QString& title, double seconds) {
    return words(title, static_cast<int>(seconds * linesPerSecond));
}

void FaultyService::fail(const demo::Exchange& exchange) {
    switch (chance_.below(8)) {
    case 0:
        exchange.respond(404, "{}");
        break;
    case 1:
        exchange.respond(500, "<html>sorry</html>", "text/html");
        break;
    case 2:
        exchange.respond(200, QByteArray(100'000, '{'));
        break;
    case 3:
        exchange.drop();
        break;
    case 4:
        exchange.send("HTTP/1.1 200 OK\r\nContent-Length: 1000000\r\n\r\n\x89PNG\r\n\x1a\n");
        QTimer::singleShot(lateness, this, [exchange] { exchange.drop(); });
        break;
    case 5:
        QTimer::singleShot(lateness, this, [exchange] { exchange.respond(200, "{}"); });
        break;
    case 6:
        exchange.send("no HTTP at all\r\n\r\n");
        exchange.drop();
        break;
    default:
        exchange.respond(302, "", "text/plain\r\nLocation: " + exchange.path);
        break;
    }
}

QByteArray FaultyService::lyricsOf(const QString& title) const {
    QString lrc;
    for (int i = 0; i < lineCount; ++i)
        lrc += QStringLiteral("[00:%1.%2]%3\n")
                   .arg(i / linesPerSecond, 2, 10, QLatin1Char('0'))
                   .arg(100 / linesPerSecond * (i % linesPerSecond), 2, 10, QLatin1Char('0'))
                   .arg(words(title, i));
    return QJsonDocument(QJsonObject{{QStringLiteral("syncedLyrics"), lrc}}).toJson();
}

} // namespace brellowind::test
