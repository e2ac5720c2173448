// SPDX-License-Identifier: MIT

#include "e2e/PrivacyFixture.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <algorithm>

namespace brellowind::test {

const QString Privacy::secret = QStringLiteral("Hushed");

namespace {

constexpr int failsByStatus = 3;
constexpr int failsByDropping = 4;

QByteArray png() {
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    image.save(&bytes, "png");
    return bytes.data();
}

QString numbered(const QString& name, int number) {
    return QStringLiteral("%1 %2").arg(name).arg(number);
}

void respond(const demo::Exchange& exchange, const QByteArray& status, const QByteArray& body) {
    exchange.send("HTTP/1.1 " + status +
                  "\r\nSet-Cookie: who=you; Path=/; Max-Age=100000\r\nContent-Length: " +
                  QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body);
    if (exchange.connection)
        exchange.connection->disconnectFromHost();
}

} // namespace

Privacy::Privacy() {
    service.handler = [this](const demo::Exchange& exchange) {
        requests.append(exchange);
        answer(exchange);
    };
}

void Privacy::liveADay(const QStringList& launcher) {
    const QString title = secret + QStringLiteral(" Title");
    const QString line = secret + QStringLiteral(" Line");
    player.emplace(desktop.bus.connection());
    play(1);
    auto& started =
        program.emplace(ProgramSession::on(desktop, environment, launcher), service.origin());
    EXPECT_TRUE(started.shows(numbered(line, 1)));
    play(2);
    EXPECT_TRUE(started.shows(numbered(line, 2)));
    EXPECT_TRUE(waitUntil([this] { return isAsked("/moved/2.png"); }));
    play(failsByStatus);
    EXPECT_TRUE(started.shows(numbered(title, failsByStatus)));
    play(failsByDropping);
    EXPECT_TRUE(started.shows(numbered(title, failsByDropping)));
    choose("Check for Updates…");
    EXPECT_TRUE(settings().shows(QStringLiteral("Update check failed")));
    press("Launch at Login");
    EXPECT_TRUE(waitUntil([this] { return QFile::exists(loginEntry()); }));
    press("Launch at Login");
    EXPECT_TRUE(waitUntil([this] { return !QFile::exists(loginEntry()); }));
    press("About");
    EXPECT_TRUE(settings().shows(QStringLiteral("Visit our website")));
    person.pressEscape();
    EXPECT_TRUE(settingsAreGone());
    player->setAnswer("error");
    EXPECT_TRUE(waitUntil([&] {
        return !started.errors().filter(QStringLiteral("Spotify AppleScript error: ")).isEmpty();
    }));
    choose("Quit Brellowind");
    EXPECT_EQ(started.process().finish(), 0);
}

QString Privacy::loginEntry() const {
    return desktop.environment().value(QStringLiteral("XDG_CONFIG_HOME")) +
           QStringLiteral("/autostart/brellowind.desktop");
}

void Privacy::play(int number) {
    auto metadata = PlayerProcess::metadata(numbered(secret + QStringLiteral(" Title"), number),
                                            secret + QStringLiteral(" Artist"),
                                            secret + QStringLiteral(" Album"), 600000);
    metadata.insert(QStringLiteral("mpris:artUrl"),
                    service.origin() + QStringLiteral("/cover/%1.png").arg(number));
    player->setTrack(metadata);
    player->setStatus("Playing");
}

void Privacy::answer(const demo::Exchange& exchange) const {
    const QString title = exchange.field(QStringLiteral("track_name"));
    const int song = title.isEmpty() ? exchange.path[7] - '0' : title.back().digitValue();
    if (exchange.path == "/latest.json")
        respond(exchange, "500 Broken", "<html>" + secret.toUtf8());
    else if (exchange.path == "/cover/2.png")
        respond(exchange, "302 Found\r\nLocation: /moved/2.png", "");
    else if (song == failsByStatus)
        respond(exchange, "500 Broken", "<html>" + secret.toUtf8());
    else if (song == failsByDropping)
        exchange.drop();
    else if (exchange.path == "/api/get")
        respond(exchange, "200 Fine",
                R"({"syncedLyrics":"[00:00.00])" +
                    numbered(secret + QStringLiteral(" Line"), song).toUtf8() + R"("})");
    else
        respond(exchange, "200 Fine", png());
}

bool Privacy::isAsked(const char* path) const {
    return std::any_of(requests.begin(), requests.end(),
                       [path](const auto& request) { return request.path == path; });
}

} // namespace brellowind::test
