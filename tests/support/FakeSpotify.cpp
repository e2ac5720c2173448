#include "support/FakeSpotify.h"

#include "playback/SpotifyBridge.h"

#include <utility>

namespace brellowind::test {

FakeSpotify::FakeSpotify(TestMachine& machine) : machine_(machine) {
    launch();
    machine.scripting.answer = [this](const std::string& source) { return execute(source); };
}

void FakeSpotify::launch() {
    machine_.runningApplications.running = {"org.example.editor", std::nullopt,
                                            std::string(SpotifyBridge::bundleIdentifier)};
}

void FakeSpotify::quit() {
    machine_.runningApplications.running = {"org.example.editor", std::nullopt};
}

void FakeSpotify::playSong(std::string nextTitle) {
    title = std::move(nextTitle);
    position = "0";
}

std::size_t FakeSpotify::readings() const {
    return machine_.scripting.count(SpotifyBridge::readOutScript);
}

std::size_t FakeSpotify::toggles() const {
    return machine_.scripting.count(SpotifyBridge::playPauseScript);
}

platform::ScriptOutcome FakeSpotify::execute(const std::string& source) {
    platform::ScriptOutcome outcome;
    if (error) {
        outcome.error = error;
        return outcome;
    }
    if (source == SpotifyBridge::playPauseScript) {
        if (obeysToggles)
            state = state == "playing" ? "paused" : "playing";
        return outcome;
    }
    if (record) {
        outcome.text = record;
        return outcome;
    }
    machine_.clock.shift += answerTime;
    std::string fields;
    for (const auto* field : {&title, &artist, &album, &duration, &artwork, &position})
        fields.append(*field).push_back(SpotifyBridge::fieldSeparator);
    outcome.text = fields.append(state);
    return outcome;
}

} // namespace brellowind::test
