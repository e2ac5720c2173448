// SPDX-License-Identifier: MIT

#include "playback/MonitorFixture.h"
#include "support/Sequences.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <gtest/gtest.h>
#include <ostream>

// Compares the monitor with a model, on random answers and toggles.
namespace brellowind {
namespace {

struct Step {
    enum Kind {
        advance,
        playSong,
        seek,
        play,
        pause,
        launch,
        quit,
        fail,
        succeed,
        disobey,
        obey,
        toggle,
        start,
        stop,
        setClock,
        answerSlowly,
    } kind;
    int number = 0;
};

std::ostream& operator<<(std::ostream& out, const Step& step) {
    const char* const kinds[] = {
        "advance by ms", "play song", "seek to",         "play",         "pause", "launch",
        "quit",          "fail",      "succeed",         "disobey",      "obey",  "toggle",
        "start",         "stop",      "put clock by ms", "answer in ms",
    };
    return out << kinds[step.kind] << ' ' << step.number;
}

Step anyStep(test::Chance& chance) {
    switch (chance.below(10)) {
    case 0:
    case 1:
    case 2:
        return {Step::advance, chance.oneOf<int>({10, 50, 130, 150, 333, 1000, 1850})};
    case 3:
        return {Step::playSong, chance.below(4)};
    case 4:
        return {Step::seek, chance.below(200)};
    case 5:
        return {chance.oneOf<Step::Kind>({Step::setClock, Step::answerSlowly}),
                chance.oneOf<int>({-3000, 0, 70, 3000})};
    case 6:
        return {Step::toggle};
    case 7:
        return {chance.oneOf<Step::Kind>({Step::start, Step::start, Step::stop})};
    case 8:
        return {chance.oneOf<Step::Kind>({Step::play, Step::play, Step::pause})};
    default:
        return {chance.oneOf<Step::Kind>(
            {Step::launch, Step::quit, Step::fail, Step::succeed, Step::disobey, Step::obey})};
    }
}

/// The state of the player.
struct Player {
    bool runs = true;
    bool readable = true;
    bool obeys = true;
    bool plays = false;
    int song = 0; ///< 2 and 3 are one song with different durations
    int position = 0;
    int answerMs = 0;

    std::string title() const { return "Song " + std::to_string(std::min(song, 2)); }
};

/// The model, in steps of a millisecond. Records assignments as letters: t for the track, p for the
/// playing flag, s for the position in seconds.
class Model {
public:
    Player player;
    int clockMs = 0; ///< the wall clock

    std::string title = "absent";
    double lengthMs = 0;
    bool isPlaying = false;
    double position = 0;
    std::string assignments;
    int readings = 0;

    void start() {
        stop();
        poll();
        alarms_.push_back({now_ + 1000, 1000, &Model::poll});
        alarms_.push_back({now_ + 50, 50, &Model::tick});
        runDue();
    }

    void stop() {
        std::erase_if(alarms_, [](const Alarm& alarm) {
            return alarm.interval > 0 || alarm.action == &Model::answer;
        });
        asking_ = false;
    }

    void toggle() {
        assignments += 'p';
        isPlaying = !isPlaying;
        toggledSinceQuestion_ = true;
        if (player.readable && player.obeys)
            player.plays = !player.plays;
        alarms_.push_back({now_ + 150, 0, &Model::poll});
    }

    void advance(int milliseconds) {
        for (; milliseconds > 0; --milliseconds) {
            ++now_;
            ++clockMs;
            runDue();
        }
    }

    std::size_t alarms() const { return alarms_.size(); }

private:
    /// Alarms that are set meanwhile for the same time run last.
    void runDue() {
        for (std::size_t i = 0; i < alarms_.size(); ++i)
            if (alarms_[i].due == now_) {
                alarms_[i].due += alarms_[i].interval;
                (this->*alarms_[i].action)();
            }
        std::erase_if(alarms_, [this](const Alarm& alarm) { return alarm.due == now_; });
    }

    struct Alarm {
        int due;
        int interval; ///< 0: once
        void (Model::*action)();
    };

    void poll() {
        if (asking_)
            return;
        asking_ = true;
        toggledSinceQuestion_ = false;
        alarms_.push_back({now_, 0, &Model::ask});
    }

    void ask() {
        ++readings;
        if (player.answerMs > 0)
            alarms_.push_back({now_ + player.answerMs, 0, &Model::answer});
        else
            answer();
    }

    void answer() {
        asking_ = false;
        if (!player.runs) {
            if (title != "absent") {
                title = "absent";
                isPlaying = false;
                assignments += "tp";
            }
            return;
        }
        if (!player.readable)
            return;
        if (title != player.title()) {
            title = player.title();
            lengthMs = 1000.0 * player.song;
            assignments += 't';
        }
        if (!toggledSinceQuestion_) {
            isPlaying = player.plays;
            assignments += 'p';
        }
        position = player.position;
        assignments += 's';
        syncedMs_ = clockMs;
    }

    void tick() {
        if (!isPlaying)
            return;
        position += (clockMs - syncedMs_) / 1000.0;
        syncedMs_ = clockMs;
        assignments += 's';
    }

    bool asking_ = false;
    bool toggledSinceQuestion_ = false;
    int now_ = 0;
    int syncedMs_ = 0;
    std::vector<Alarm> alarms_; ///< in the order of setting
};

/// The monitor, its player and the model.
class Comparison {
public:
    Comparison() {
        subscriptions_[0] = nowPlaying().track.observe([this] { assignments_ += 't'; });
        subscriptions_[1] = nowPlaying().isPlaying.observe([this] { assignments_ += 'p'; });
        subscriptions_[2] = nowPlaying().positionSec.observe([this] { assignments_ += 's'; });
        tellPlayer();
    }

    test::Disagreement take(const Step& step) {
        if (!changePlayer(step))
            act(step);
        return difference();
    }

private:
    NowPlaying& nowPlaying() { return *monitor_.nowPlaying; }
    const NowPlaying& nowPlaying() const { return *monitor_.nowPlaying; }

    void act(const Step& step) {
        switch (step.kind) {
        case Step::advance:
            monitor_.advance(std::chrono::milliseconds(step.number));
            model_.advance(step.number);
            break;
        case Step::toggle:
            monitor_.toggle();
            model_.toggle();
            break;
        case Step::start:
            monitor_.start();
            model_.start();
            break;
        case Step::stop:
            nowPlaying().stop();
            monitor_.machine.mainLoop.runTurns();
            model_.stop();
            break;
        default:
            monitor_.machine.clock.shift += std::chrono::milliseconds(step.number);
            model_.clockMs += step.number;
            break;
        }
    }

    /// Returns false if the step does not concern the player.
    bool changePlayer(const Step& step) {
        auto& player = model_.player;
        switch (step.kind) {
        case Step::playSong:
            player.song = step.number;
            player.position = 0;
            break;
        case Step::seek:
            player.position = step.number;
            break;
        case Step::play:
        case Step::pause:
            player.plays = step.kind == Step::play;
            break;
        case Step::launch:
        case Step::quit:
            player.runs = step.kind == Step::launch;
            break;
        case Step::fail:
        case Step::succeed:
            player.readable = step.kind == Step::succeed;
            break;
        case Step::disobey:
        case Step::obey:
            player.obeys = step.kind == Step::obey;
            break;
        case Step::answerSlowly:
            player.answerMs = std::abs(step.number);
            break;
        default:
            return false;
        }
        tellPlayer();
        return true;
    }

    void tellPlayer() {
        const auto& player = model_.player;
        auto& spotify = monitor_.spotify;
        player.runs ? spotify.launch() : spotify.quit();
        spotify.title = player.title();
        spotify.durationMs = 1000 * player.song;
        spotify.position = player.position;
        spotify.plays = player.plays;
        spotify.obeysToggles = player.obeys;
        spotify.answerTime = std::chrono::milliseconds(player.answerMs);
        spotify.readable = player.readable;
    }

    test::Disagreement difference() const {
        const auto& model = model_;
        if (monitor_.title() != model.title)
            return "track: " + monitor_.title() + " instead of " + model.title;
        if (const auto& track = nowPlaying().track.get();
            track && track->durationMs != model.lengthMs)
            return "length: " + std::to_string(track->durationMs) + " instead of " +
                   std::to_string(model.lengthMs);
        if (nowPlaying().isPlaying.get() != model.isPlaying)
            return model.isPlaying ? "paused instead of playing" : "playing instead of paused";
        if (std::abs(monitor_.position() - model.position) > test::tolerance)
            return "position: " + std::to_string(monitor_.position()) + " instead of " +
                   std::to_string(model.position);
        if (assignments_ != model.assignments)
            return "assignments: " + assignments_ + " instead of " + model.assignments;
        if (monitor_.spotify.readings() != static_cast<std::size_t>(model.readings))
            return "readings: " + std::to_string(monitor_.spotify.readings()) + " instead of " +
                   std::to_string(model.readings);
        const auto& loop = monitor_.machine.mainLoop;
        const auto repeating = loop.repeatingTimerCount(NowPlaying::pollInterval) +
                               loop.repeatingTimerCount(NowPlaying::tickInterval);
        if (repeating + monitor_.machine.tasks.running() != model.alarms())
            return std::to_string(repeating) + " timers and " +
                   std::to_string(monitor_.machine.tasks.running()) + " tasks instead of " +
                   std::to_string(model.alarms()) + " together";
        return std::nullopt;
    }

    test::Monitor monitor_;
    Model model_;
    std::string assignments_;
    std::array<Subscription, 3> subscriptions_;
};

TEST(NowPlayingModel, IsFollowedWhateverThePlayerAnswersAndWheneverItIsToggled) {
    test::expectAgreement<Step>({.step = anyStep, .run = test::compared<Comparison, Step>});
}

} // namespace
} // namespace brellowind
