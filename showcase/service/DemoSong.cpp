// SPDX-License-Identifier: MIT

#include "service/DemoSong.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace brellowind::demo {
namespace {

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

std::optional<DemoSong> DemoSong::load(const QString& folder) {
    const QDir directory(folder);
    const auto song =
        QJsonDocument::fromJson(contents(directory.filePath(QStringLiteral("song.json")))).object();
    DemoSong loaded{
        .title = song.value(QStringLiteral("title")).toString(),
        .artist = song.value(QStringLiteral("artist")).toString(),
        .album = song.value(QStringLiteral("album")).toString(),
        .durationMs = song.value(QStringLiteral("durationMs")).toInteger(),
        .lyrics = contents(directory.filePath(song.value(QStringLiteral("lyrics")).toString())),
        .cover = contents(directory.filePath(song.value(QStringLiteral("cover")).toString())),
    };
    if (loaded.title.isEmpty() || loaded.durationMs <= 0 || loaded.lyrics.isEmpty() ||
        loaded.cover.isEmpty())
        return std::nullopt;
    return loaded;
}

} // namespace brellowind::demo
