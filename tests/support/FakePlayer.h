// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Player.h"
#include "support/FakeMainLoop.h"

#include <chrono>
#include <cstddef>
#include <string>

namespace brellowind::test {

/// A running player, initially paused at 0. Its answers have the values of its fields at the time
/// of the answer.
class FakePlayer final : public platform::Player {
public:
    explicit FakePlayer(FakeMainLoop& mainLoop) : mainLoop_(mainLoop) {}

    Task<Answer> read() override;
    Task<void> playPause() override;

    void launch() { runs_ = true; }
    void quit() { runs_ = false; }

    /// Starts another song; artwork and state are unchanged.
    void playSong(std::string nextTitle);

    /// Number of readings, and of play/pause commands.
    std::size_t readings() const { return readings_; }
    std::size_t toggles() const { return toggles_; }

    std::string title = "Song";
    std::string artist = "Artist";
    std::string album = "Album";
    double durationMs = 215000;
    std::string artwork; ///< empty: none
    double position = 0;
    bool plays = false;

    bool readable = true; ///< false: answers are unusable and commands fail
    bool obeysToggles = true;
    std::chrono::milliseconds answerTime{0}; ///< delay of the answers

private:
    Answer answer() const;

    FakeMainLoop& mainLoop_;
    bool runs_ = true;
    std::size_t readings_ = 0;
    std::size_t toggles_ = 0;
};

} // namespace brellowind::test
