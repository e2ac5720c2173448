// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Player.h"
#include "service/DemoSong.h"

#include <chrono>
#include <string>
#include <utility>

namespace brellowind::selfcheck {

/// A player that plays one song from its beginning, for as long as it lives.
class SongPlayer final : public platform::Player {
public:
    SongPlayer(const demo::DemoSong& song, std::string coverURL)
        : track_{song.title.toStdString(), song.artist.toStdString(), song.album.toStdString(),
                 static_cast<double>(song.durationMs), std::move(coverURL)} {}

    Task<Answer> read() override {
        const std::chrono::duration<double> played = Clock::now() - start_;
        co_return Snapshot{track_, true, played.count()};
    }

    Task<void> playPause() override { co_return; }

private:
    using Clock = std::chrono::steady_clock;

    const Track track_;
    const Clock::time_point start_ = Clock::now();
};

} // namespace brellowind::selfcheck
