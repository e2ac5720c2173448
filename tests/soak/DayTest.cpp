// SPDX-License-Identifier: MIT

#include "settings/GeneralSettings.h"
#include "settings/UpdateChecker.h"
#include "soak/Heap.h"
#include "support/Chance.h"
#include "views/RootViewFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <ostream>
#include <utility>
#include <vector>

// The logic during a whole day of simulated time.
namespace brellowind::test {
namespace {

using namespace std::chrono_literals;

/// The resources in use while idle.
struct Held {
    std::size_t timers;
    std::size_t nextTurns;
    std::size_t tasks;
    std::size_t transfers;
    std::size_t pointerMonitors;
    std::size_t blocks; ///< on the heap

    bool operator==(const Held&) const = default;

    friend std::ostream& operator<<(std::ostream& out, const Held& held) {
        return out << held.timers << " timers, " << held.nextTurns << " next turns, " << held.tasks
                   << " tasks, " << held.transfers << " transfers, " << held.pointerMonitors
                   << " pointer monitors, " << held.blocks << " blocks";
    }
};

void forget(auto& list) {
    list.clear();
    list.shrink_to_fit();
}

class Day {
public:
    Day() { view_.appear(); }

    void passAnHour() {
        for (auto left = std::chrono::milliseconds(1h); left > 0ms;) {
            act();
            const std::chrono::milliseconds pause(chance_.below(20'000));
            view_.advance(pause);
            left -= pause;
        }
    }

    /// Brings everything to the same final state, and frees the test's own records.
    Held rest() {
        settings_.reset();
        checks_.cancel();
        view_.machine.mainLoop.runTurns();
        view_.spotify.launch();
        view_.spotify.readable = true;
        forget(view_.spotify.artwork);
        view_.spotify.plays = false;
        answerAll();
        view_.spotify.playSong("At the end");
        view_.view.checkForUpdates();
        view_.advance(2s);
        answerAll();
        view_.movePointer(View::elsewhere);
        view_.advance(2s);
        forget(view_.machine.http.requests);
        forget(view_.machine.log.lines);
        forget(view_.machine.loginItem.attempts);
        forget(view_.window.calls);
        const auto& machine = view_.machine;
        return {machine.mainLoop.timerCount(),  machine.mainLoop.nextTurnCount(),
                machine.tasks.running(),        machine.http.pending(),
                machine.pointer.monitorCount(), heap().blocks};
    }

    int songs = 0;
    int redraws = 0;

private:
    void act() {
        auto& spotify = view_.spotify;
        switch (chance_.below(12)) {
        case 0:
            playSong();
            break;
        case 1:
            spotify.position = chance_.below(300);
            break;
        case 2:
            spotify.plays = !chance_.onceIn(3);
            break;
        case 3:
            chance_.onceIn(3) ? spotify.quit() : spotify.launch();
            break;
        case 4:
            failOrSucceed();
            break;
        case 5:
        case 6:
            answerAll();
            break;
        case 7:
            view_.movePointer(chance_.onceIn(2) ? View::overThePill : View::elsewhere);
            glance_ = view_.view.onRedraw([this] { glance_.cancel(); });
            break;
        case 8:
            tap();
            break;
        case 9:
            useSettings();
            break;
        case 10:
            view_.view.sizeChanged({272.0 + chance_.below(100), 59});
            break;
        default:
            view_.machine.clock.shift += std::chrono::milliseconds(chance_.below(5000) - 2500);
            break;
        }
    }

    void playSong() {
        ++songs;
        view_.spotify.playSong("Song " + std::to_string(songs));
        view_.spotify.artwork =
            chance_.onceIn(3) ? "" : "https://covers.example/" + std::to_string(songs);
    }

    void failOrSucceed() { view_.spotify.readable = !chance_.onceIn(3); }

    /// Answers requests, correctly or not, so that none is open at the end of an hour.
    void answerAll() {
        const bool isTheEnd = view_.spotify.title == "At the end";
        auto& http = view_.machine.http;
        for (std::size_t i = 0; i < http.requests.size(); ++i)
            http.answer(i, isTheEnd ? platform::TransportError{"no route"} : anyAnswer());
        view_.runTurns();
    }

    platform::HttpResult anyAnswer() {
        switch (chance_.below(6)) {
        case 0:
            return platform::TransportError{"no route"};
        case 1:
            return platform::HttpResponse{404, ""};
        case 2:
            return platform::HttpResponse{200, "image " + std::to_string(songs)};
        case 3:
            return platform::HttpResponse{
                200, R"({"version":"99.0","url":"https://downloads.example/"})"};
        default:
            return synced("[00:01]one\\n[00:02]two\\n[01:00.5][02:00.5]a chorus of many words");
        }
    }

    void tap() {
        auto& view = view_.view;
        switch (chance_.below(6)) {
        case 0:
            view.tapCover();
            break;
        case 1:
            view.tapArtwork();
            break;
        case 2:
            view.tapGrabber();
            break;
        case 3:
            view.tapBackground();
            break;
        default:
            view.tapWaveform();
            break;
        }
    }

    void useSettings() {
        if (chance_.onceIn(4))
            view_.view.checkForUpdates();
        if (settings_) {
            settings_->disappear();
            settings_.reset();
            checks_.cancel();
        } else {
            settings_.emplace(view_.parts.services());
            checks_ = view_.parts.updater->state.observe([this] { ++redraws; });
            settings_->appear();
            settings_->setLaunchAtLogin(chance_.onceIn(2));
        }
    }

    View view_;
    Chance chance_{1};
    std::optional<GeneralSettings> settings_;
    Subscription checks_;
    Subscription glance_; ///< unregisters during its notification
    Subscription drawing_ = view_.view.onRedraw([this] { ++redraws; });
};

TEST(Day, LeavesNothingBehindThatItsFirstHourHasNot) {
    constexpr int hours = 24;
    Day day;
    std::vector<Held> held;
    held.reserve(hours); // so that measuring does not allocate
    day.passAnHour();
    held.push_back(day.rest());
    const std::size_t bytes = heap().bytes;
    const int redraws = day.redraws;
    while (held.size() < hours) {
        day.passAnHour();
        held.push_back(day.rest());
    }
    const std::size_t more = heap().bytes - bytes;
    EXPECT_THAT(held, testing::Each(held.front()));
    EXPECT_LE(static_cast<std::ptrdiff_t>(more), 256) << "bytes more than after the first hour";
    EXPECT_GT(day.songs, hours * 10);
    EXPECT_GT(day.redraws, hours / 2 * redraws) << "the later hours were idle";
}

} // namespace
} // namespace brellowind::test
