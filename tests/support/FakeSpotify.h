#pragma once

#include "support/TestMachine.h"

#include <cstddef>
#include <optional>
#include <string>

namespace brellowind::test {

/// The player behind the scripts of a `TestMachine`. It runs from the start, paused at 0 in a song,
/// and answers the read-out script with its fields as they stand.
class FakeSpotify {
public:
    explicit FakeSpotify(TestMachine& machine);
    FakeSpotify(const FakeSpotify&) = delete;
    FakeSpotify& operator=(const FakeSpotify&) = delete;

    void launch();
    void quit();

    /// Another song begins at its start; artwork and state stay as they are.
    void playSong(std::string nextTitle);

    /// How often the player was asked what it plays, failing answers included.
    std::size_t readings() const;

    /// How often it was told to play or pause.
    std::size_t toggles() const;

    std::string title = "Song";
    std::string artist = "Artist";
    std::string album = "Album";
    std::string duration = "215000";
    std::string artwork;
    std::string position = "0";
    std::string state = "paused";

    std::optional<std::string> error;  ///< every script fails with it
    std::optional<std::string> record; ///< what a reading answers in place of the fields
    bool obeysToggles = true;
    std::chrono::milliseconds answerTime{0}; ///< the wall clock moves on by it during a reading

private:
    platform::ScriptOutcome execute(const std::string& source);

    TestMachine& machine_;
};

} // namespace brellowind::test
