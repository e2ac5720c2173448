#pragma once

#include "platform/Player.h"
#include "support/FakeMainLoop.h"

#include <chrono>
#include <cstddef>
#include <string>

namespace brellowind::test {

/// A player that runs from the start, paused at 0 in a song, and answers with its fields as they
/// stand at the moment of the answer.
class FakePlayer final : public platform::Player {
public:
    explicit FakePlayer(FakeMainLoop& mainLoop) : mainLoop_(mainLoop) {}

    Task<Answer> read() override;
    Task<void> playPause() override;

    void launch() { runs_ = true; }
    void quit() { runs_ = false; }

    /// Another song begins at its start; artwork and state stay as they are.
    void playSong(std::string nextTitle);

    /// How often the player was asked what it plays, and told to play or pause.
    std::size_t readings() const { return readings_; }
    std::size_t toggles() const { return toggles_; }

    std::string title = "Song";
    std::string artist = "Artist";
    std::string album = "Album";
    double durationMs = 215000;
    std::string artwork; ///< empty: none
    double position = 0;
    bool plays = false;

    bool readable = true; ///< false: no answer can be used, and no command is obeyed
    bool obeysToggles = true;
    std::chrono::milliseconds answerTime{0}; ///< between a question and its answer

private:
    Answer answer() const;

    FakeMainLoop& mainLoop_;
    bool runs_ = true;
    std::size_t readings_ = 0;
    std::size_t toggles_ = 0;
};

} // namespace brellowind::test
