// SPDX-License-Identifier: MIT

#pragma once

#include "playback/NowPlaying.h"
#include "support/TestMachine.h"

#include <cmath>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace brellowind::test {

inline constexpr double tolerance = 1e-9; ///< seconds

/// A monitor and its player.
struct Monitor {
    TestMachine machine;
    FakePlayer& spotify = machine.player;
    std::shared_ptr<NowPlaying> nowPlaying = std::make_shared<NowPlaying>(
        machine.mainLoop, machine.tasks, [this] { return machine.clock.now(); }, machine.player);

    /// Starts the monitor and processes an immediate answer of the player.
    void start() {
        nowPlaying->start();
        machine.mainLoop.runTurns();
    }

    void toggle() {
        nowPlaying->togglePlayPause();
        machine.mainLoop.runTurns();
    }

    void advance(std::chrono::milliseconds duration) { machine.mainLoop.advance(duration); }
    double position() const { return nowPlaying->positionSec.get(); }
    std::string title() const {
        return nowPlaying->track.get() ? nowPlaying->track->value().title : "absent";
    }
};

/// Records each assignment with the values before it.
class Journal {
public:
    explicit Journal(const NowPlaying& nowPlaying) {
        subscriptions_.push_back(nowPlaying.track.observe([&] { note("track", nowPlaying); }));
        subscriptions_.push_back(
            nowPlaying.isPlaying.observe([&] { note("isPlaying", nowPlaying); }));
        subscriptions_.push_back(
            nowPlaying.positionSec.observe([&] { note("positionSec", nowPlaying); }));
    }

    std::vector<std::string> take() { return std::exchange(entries_, {}); }

private:
    void note(const std::string& property, const NowPlaying& before) {
        const auto& track = before.track.get();
        entries_.push_back(property + ": " + (track ? track->title : "absent") + ", " +
                           (before.isPlaying.get() ? "playing" : "paused") + ", " +
                           std::to_string(std::lround(before.positionSec.get() * 1000)) + " ms");
    }

    std::vector<std::string> entries_;
    std::vector<Subscription> subscriptions_;
};

using Entries = std::vector<std::string>;

} // namespace brellowind::test
