// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace brellowind::demo {

/// A song in a folder: song.json has its texts and the names of its lyrics file and its cover.
struct DemoSong {
    QString title;
    QString artist;
    QString album;
    qint64 durationMs;
    QByteArray lyrics; ///< LRC
    QByteArray cover;  ///< PNG

    /// Returns nullopt if the folder has no complete song.
    static std::optional<DemoSong> load(const QString& folder);
};

} // namespace brellowind::demo
