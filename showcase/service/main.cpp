// SPDX-License-Identifier: MIT

#include "loopback/LoopbackServer.h"
#include "service/DemoSong.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>

using namespace brellowind::demo;

namespace {

QByteArray found(const DemoSong& song) {
    return QJsonDocument(QJsonObject{
                             {QStringLiteral("id"), 1},
                             {QStringLiteral("trackName"), song.title},
                             {QStringLiteral("artistName"), song.artist},
                             {QStringLiteral("albumName"), song.album},
                             {QStringLiteral("duration"), song.durationMs / 1000},
                             {QStringLiteral("instrumental"), false},
                             {QStringLiteral("plainLyrics"), QJsonValue()},
                             {QStringLiteral("syncedLyrics"), QString::fromUtf8(song.lyrics)},
                         })
        .toJson(QJsonDocument::Compact);
}

void answer(const DemoSong& song, const Exchange& exchange) {
    if (exchange.path == "/cover.png") {
        exchange.respond(200, song.cover, "image/png");
        return;
    }
    if (exchange.path == "/latest.json") {
        exchange.respond(200, R"({"version": "0", "url": "http://localhost/"})");
        return;
    }
    if (exchange.path != "/api/get") {
        exchange.respond(200, "<title>Brellowind</title><p>A page of the product.", "text/html");
        return;
    }
    const bool known = exchange.field(QStringLiteral("track_name")) == song.title &&
                       exchange.field(QStringLiteral("artist_name")) == song.artist;
    if (known)
        exchange.respond(200, found(song));
    else
        exchange.respond(404, R"({"code":404,"name":"TrackNotFound",)"
                              R"("message":"Failed to find specified track"})");
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const auto song = arguments.size() == 2 ? DemoSong::load(arguments.at(1)) : std::nullopt;
    if (!song) {
        std::fprintf(stderr, "usage: brellowind-demo-service FOLDER-OF-A-SONG\n");
        return 2;
    }
    const LoopbackServer server([&song](const Exchange& exchange) { answer(*song, exchange); });
    if (server.origin().isEmpty()) {
        std::fprintf(stderr, "brellowind-demo-service: no port of loopback is free\n");
        return 1;
    }
    std::printf("%s\n", qPrintable(server.origin()));
    std::fflush(stdout);
    return QCoreApplication::exec();
}
