// SPDX-License-Identifier: MIT

#pragma once

#include "support/FakeOverlay.h"
#include "support/RootViewParts.h"
#include "views/NotchRootView.h"

#include <chrono>
#include <memory>
#include <string>
#include <utility>

namespace brellowind::test {

/// The lyrics service's answer with `lrc`, which is JSON-escaped.
inline platform::HttpResponse synced(const std::string& lrc) {
    return {200, R"({"syncedLyrics":")" + lrc + R"("})"};
}

/// A view on a laptop with a notch, with a paused player. The pointer is unknown.
struct View {
    static constexpr Rect screenFrame{0, 0, 1512, 982};
    static constexpr Point overThePill{756, 970};
    static constexpr Point elsewhere{300, 300};

    View() {
        const platform::Screen laptop{.frame = screenFrame, .topSafeAreaInset = 32};
        machine.screens.connected = {laptop};
        machine.screens.mainScreen = laptop;
    }

    TestMachine machine;
    FakePlayer& spotify = machine.player;
    FakeOverlay window;
    int settingsOpenings = 0;
    std::function<void()> onSettingsOpening = [] {};
    RootViewParts parts{machine};
    std::shared_ptr<NotchRootView> root = parts.make([this] { return &window; },
                                                     [this] {
                                                         ++settingsOpenings;
                                                         onSettingsOpening();
                                                     });
    NotchRootView& view = *root;

    void advance(std::chrono::milliseconds duration) { machine.mainLoop.advance(duration); }
    void runTurns() { machine.mainLoop.runTurns(); }
    std::string text() const { return std::string(view.currentLineText()); }
    const NotchRootView::Form& form() const { return view.form(); }
    LyricsState::Case lyricsCase() const { return view.lyrics().state->which(); }
    std::size_t requests() const { return machine.http.requests.size(); }

    void movePointer(Point to) {
        machine.pointer.move(to);
        runTurns();
    }

    /// Shows the view.
    void appear() {
        view.appear();
        runTurns();
    }

    /// Shows the view while Spotify plays, and answers the lyrics request.
    void appearAnswered(platform::HttpResult answer) {
        appear();
        machine.http.answer(0, std::move(answer));
        runTurns();
    }

    /// Starts or resumes playback, which the next reading detects.
    void resume() {
        spotify.plays = true;
        advance(std::chrono::seconds(1));
    }

    /// Pauses playback, which the next reading detects.
    void pause() {
        spotify.plays = false;
        advance(std::chrono::seconds(1));
    }
};

} // namespace brellowind::test
