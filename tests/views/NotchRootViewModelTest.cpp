// SPDX-License-Identifier: MIT

#include "support/Sequences.h"
#include "views/RootViewFixture.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <ostream>
#include <set>

// Compares the pill's form with a model, on random pointer movements, taps, playback and lyrics.
namespace brellowind {
namespace {

using Form = NotchRootView::Form;
using Case = LyricsState::Case;

struct Step {
    enum Kind {
        point,
        layOut,
        hover,
        tapCover,
        tapWaveform,
        tapGrabber,
        tapPanel,
        advance,
        play,
        pause,
        playSong,
        seek,
        quit,
        launch,
        answer,
    } kind;
    int number = 0;
    bool endsTurn = true; ///< whether the main loop runs after it
};

std::ostream& operator<<(std::ostream& out, const Step& step) {
    const char* const kinds[] = {"point at",     "lay out",     "hover",     "tap cover",
                                 "tap waveform", "tap grabber", "tap panel", "advance by ms",
                                 "play",         "pause",       "play song", "seek to",
                                 "quit",         "launch",      "answer"};
    return out << kinds[step.kind] << ' ' << step.number
               << (step.endsTurn ? "" : " in one turn with");
}

Step anyStep(test::Chance& chance) {
    const auto kind = chance.oneOf<Step::Kind>(
        {Step::point,       Step::point,       Step::layOut,     Step::hover,      Step::tapCover,
         Step::tapWaveform, Step::tapWaveform, Step::tapGrabber, Step::tapGrabber, Step::tapPanel,
         Step::tapPanel,    Step::advance,     Step::advance,    Step::advance,    Step::play,
         Step::play,        Step::pause,       Step::playSong,   Step::seek,       Step::quit,
         Step::launch,      Step::answer,      Step::answer});
    const bool endsTurn = chance.below(4) > 0;
    if (kind == Step::advance)
        return {kind, chance.oneOf<int>({10, 50, 90, 100, 110, 150, 1000}), true};
    return {kind, chance.below(6), endsTurn};
}

/// The three forms of the pill, and the one below the artwork panel.
enum class Look { line, band, panel, panelOverBand };

/// The model of the pill.
class Model {
public:
    Look look = Look::line;
    Form form() const {
        return {.isMinimized = look == Look::band || look == Look::panelOverBand,
                .isArtExpanded = look == Look::panel || look == Look::panelOverBand,
                .playPulse = isPulsing_,
                .hovered = hovered_,
                .coverHovered = hoveredItems.contains(0),
                .grabberHovered = hoveredItems.contains(1),
                .waveformHovered = hoveredItems.contains(2)};
    }

    std::set<int> hoveredItems; ///< cover, grabber, waveform

    /// A tap on the background of the pill, or on the panel.
    void tapPanel() {
        switch (look) {
        case Look::line:
            look = Look::band;
            break;
        case Look::band:
        case Look::panel:
            look = Look::line;
            break;
        case Look::panelOverBand:
            look = Look::band;
            break;
        }
    }

    void tapCover() { look = Look::panel; }
    bool showsPanel() const { return look == Look::panel || look == Look::panelOverBand; }

    /// A turn of the main loop, in which the pill is updated.
    void turn(bool plays, bool inside) {
        hovered_ = inside;
        if (plays == plays_)
            return;
        plays_ = plays;
        if (plays)
            look = showsPanel() ? Look::panel : Look::line;
        else if (!inside)
            look = showsPanel() ? Look::panelOverBand : Look::band;
        isPulsing_ = true;
        pulseEnds_.push_back(now_ + 100);
    }

    void pass(int milliseconds) { now_ += milliseconds; }

    void endPulses() {
        if (std::erase_if(pulseEnds_, [this](int end) { return end <= now_; }) > 0)
            isPulsing_ = false;
    }

private:
    bool hovered_ = false;
    bool plays_ = false;
    bool isPulsing_ = false;
    int now_ = 0;
    std::vector<int> pulseEnds_;
};

/// The pill's text, computed by a simple linear search.
std::string expectedText(const NowPlaying& nowPlaying, const LyricsState& lyrics) {
    if (!nowPlaying.track.get())
        return "No music playing";
    if (lyrics.which() == Case::loading)
        return "Loading lyrics…";
    if (lyrics.which() != Case::loaded)
        return nowPlaying.track->value().title;
    std::string text;
    for (const auto& line : lyrics.lines())
        if (line.time <= nowPlaying.positionSec.get())
            text = line.text;
    return text.empty() ? "♪" : text;
}

/// The view, its fake machine and the model.
class Comparison {
public:
    Comparison() {
        view_.spotify.playSong("Song 0");
        view_.appear();
    }

    test::Disagreement take(const Step& step) {
        if (step.kind == Step::advance)
            return advance(step.number);
        act(step);
        if (!step.endsTurn)
            return differenceOfForms();
        view_.runTurns();
        model_.turn(plays(), inside_);
        return difference();
    }

private:
    static constexpr int sliceMs = 10; ///< nothing happens between its multiples

    bool plays() const { return view_.view.nowPlaying().isPlaying.get(); }

    test::Disagreement advance(int milliseconds) {
        view_.runTurns(); // pending work of previous steps
        model_.turn(plays(), inside_);
        for (int passed = 0; passed < milliseconds; passed += sliceMs) {
            view_.advance(std::chrono::milliseconds(sliceMs));
            model_.pass(sliceMs);
            model_.endPulses(); // a reading at the same time is a turn later
            model_.turn(plays(), inside_);
            if (auto disagreement = difference())
                return disagreement;
        }
        return std::nullopt;
    }

    void act(const Step& step) {
        switch (step.kind) {
        case Step::point:
            point(step.number);
            break;
        case Step::layOut:
            size_ = step.number % 2 == 0 ? Size{272, 45} : Size{352, 420};
            view_.view.sizeChanged(size_);
            break;
        case Step::hover:
            hover(step.number % 3);
            break;
        case Step::tapCover:
        case Step::tapWaveform:
        case Step::tapGrabber:
        case Step::tapPanel:
            tap(step.kind);
            break;
        case Step::answer:
            answer(step.number);
            break;
        default:
            changePlayer(step);
            break;
        }
    }

    /// In the middle of the pill, on its margin, or farther away.
    void point(int place) {
        const double aside = size_.width / 2;
        const double offsets[] = {0, aside - 1, aside + 7, aside + 9, aside + 200, 700};
        const Point to{test::View::screenFrame.midX() + offsets[place],
                       test::View::screenFrame.maxY() - 5};
        inside_ = offsets[place] < aside + 8;
        view_.machine.pointer.move(to);
    }

    void hover(int item) {
        const bool enters = model_.hoveredItems.insert(item).second;
        if (!enters)
            model_.hoveredItems.erase(item);
        if (item == 0)
            view_.view.hoverCover(enters);
        else if (item == 1)
            view_.view.hoverGrabber(enters);
        else
            view_.view.hoverWaveform(enters);
    }

    void tap(Step::Kind element) {
        auto& view = view_.view;
        const bool showsPanel = model_.showsPanel();
        if (element == Step::tapWaveform) {
            view.tapWaveform();
        } else if (element == Step::tapGrabber) {
            view.tapGrabber();
            model_.tapPanel();
        } else if (element == Step::tapPanel) {
            showsPanel ? view.tapArtwork() : view.tapBackground();
            model_.tapPanel();
        } else if (!showsPanel) { // the panel has no cover to tap
            view.tapCover();
            model_.tapCover();
        }
    }

    void changePlayer(const Step& step) {
        auto& spotify = view_.spotify;
        switch (step.kind) {
        case Step::play:
        case Step::pause:
            spotify.plays = step.kind == Step::play;
            break;
        case Step::playSong:
            spotify.playSong("Song " + std::to_string(step.number));
            break;
        case Step::seek:
            spotify.position = step.number;
            break;
        case Step::quit:
            spotify.quit();
            break;
        default:
            spotify.launch();
            break;
        }
    }

    /// Answers the last request, which may have been answered before.
    void answer(int manner) {
        if (view_.requests() == 0)
            return;
        platform::HttpResult answers[] = {
            test::synced("[00:01]one\\n[00:02]\\n[00:03]three\\n[00:03]four"),
            test::synced("[00:02]two"),
            test::synced("no time"),
            platform::HttpResponse{200, R"({"plainLyrics":"plain words"})"},
            platform::HttpResponse{404, ""},
            platform::TransportError{"no route"},
        };
        view_.machine.http.answer(view_.requests() - 1, std::move(answers[manner]));
    }

    test::Disagreement differenceOfForms() const {
        const Form& seen = view_.form();
        const Form expected = model_.form();
        if (seen == expected)
            return std::nullopt;
        return "form: " + described(seen) + "instead of " + described(expected);
    }

    static std::string described(const Form& form) {
        std::string words;
        const auto add = [&words](bool is, const char* word) { words += is ? word : ""; };
        add(form.isMinimized, "minimized ");
        add(form.isArtExpanded, "artwork ");
        add(form.playPulse, "pulse ");
        add(form.hovered, "hovered ");
        add(form.coverHovered, "cover-hovered ");
        add(form.grabberHovered, "grabber-hovered ");
        add(form.waveformHovered, "waveform-hovered ");
        return words.empty() ? "plain " : words;
    }

    test::Disagreement difference() const {
        if (auto disagreement = differenceOfForms())
            return disagreement;
        const auto& nowPlaying = view_.view.nowPlaying();
        const auto& track = nowPlaying.track.get();
        const std::string expected = expectedText(nowPlaying, *view_.view.lyrics().state);
        if (view_.text() != expected)
            return "text: " + view_.text() + " instead of " + expected;
        if ((view_.lyricsCase() == Case::idle) != !track)
            return "lyrics of no track, or a track without";
        if (track && !view_.machine.http.requests.back()->request.url.ends_with(
                         "?track_name=Song%20" + track->title.substr(track->title.size() - 1) +
                         "&artist_name=Artist&album_name=Album&duration=215"))
            return "lyrics asked for: " + view_.machine.http.requests.back()->request.url;
        if (inside_ == ignoresMouse())
            return inside_ ? "click-through under the pointer" : "in the way of clicks";
        return std::nullopt;
    }

    bool ignoresMouse() const {
        if (view_.window.calls.empty())
            return true; // the initial value
        return std::get<test::FakeOverlay::SetIgnoresMouseEvents>(view_.window.calls.back())
            .ignores;
    }

    test::View view_;
    Model model_;
    Size size_{280, 59};
    bool inside_ = false;
};

TEST(NotchRootViewModel, TakesNoFormButThoseThatItsModelPredicts) {
    test::expectAgreement<Step>({.step = anyStep, .run = test::compared<Comparison, Step>});
}

} // namespace
} // namespace brellowind
