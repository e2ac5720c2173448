// SPDX-License-Identifier: MIT

#include "views/NotchRootView.h"

#include "platform/Sleep.h"

#include <utility>

namespace brellowind {
namespace {

constexpr std::string_view noMusicText = "No music playing";
constexpr std::string_view loadingText = "Loading lyrics…";
constexpr std::string_view noteText = "♪";

constexpr std::chrono::milliseconds pulseDuration{100};

} // namespace

NotchRootView::NotchRootView(Environment environment)
    : environment_(std::move(environment)),
      interactivity_(environment_.mainLoop, environment_.window),
      nextTurn_(environment_.mainLoop.onNextTurn([this] { refresh(); })) {
    const auto observe = [this](const auto& published) {
        subscriptions_.push_back(published.observe([this] { nextTurn_->request(); }));
    };
    observe(environment_.nowPlaying->track);
    observe(environment_.nowPlaying->isPlaying);
    observe(environment_.nowPlaying->positionSec);
    observe(environment_.lyrics->state);
    observe(environment_.hover->isInside);
    observe(environment_.artwork->image);
}

void NotchRootView::appear() {
    environment_.nowPlaying->start();
    environment_.hover->start();
}

std::string_view NotchRootView::currentLineText() const {
    const auto& track = environment_.nowPlaying->track.get();
    if (!track)
        return noMusicText;
    switch (environment_.lyrics->state->which()) {
    case LyricsState::Case::loading:
        return loadingText;
    case LyricsState::Case::loaded: {
        const auto active =
            environment_.lyrics->activeIndex(environment_.nowPlaying->positionSec.get());
        if (!active || environment_.lyrics->lines()[*active].text.empty())
            return noteText;
        return environment_.lyrics->lines()[*active].text;
    }
    case LyricsState::Case::idle:
    case LyricsState::Case::plain:
    case LyricsState::Case::notFound:
    case LyricsState::Case::failed:
        break;
    }
    return track->title;
}

std::optional<double> NotchRootView::timeUntilNextLine() const {
    const double position = environment_.nowPlaying->positionSec.get();
    const auto next = environment_.lyrics->nextTime(position);
    return next ? std::optional(*next - position) : std::nullopt;
}

Subscription NotchRootView::onRedraw(Observers::Callback redraw) {
    return redraw_->add(std::move(redraw));
}

void NotchRootView::change(bool& ofForm, bool value) {
    ofForm = value;
    nextTurn_->request();
}

void NotchRootView::tapCover() {
    form_.isMinimized = false;
    change(form_.isArtExpanded, true);
}

void NotchRootView::tapWaveform() {
    if (environment_.nowPlaying->track.get())
        environment_.nowPlaying->togglePlayPause();
}

void NotchRootView::tapGrabber() {
    if (form_.isArtExpanded)
        tapArtwork();
    else
        tapBackground();
}

void NotchRootView::openSettings() {
    environment_.router.setSelectedTab(SettingsTab::general);
    environment_.openSettings();
}

void NotchRootView::checkForUpdates() {
    openSettings();
    environment_.tasks.start(environment_.updater.check());
}

void NotchRootView::refresh() {
    if (environment_.nowPlaying->track.get() != seenTrack_)
        trackChanged();
    const bool inside = environment_.hover->isInside.get();
    if (inside != std::exchange(seenInside_, inside)) {
        form_.hovered = inside;
        interactivity_.update(inside);
    }
    const bool playing = environment_.nowPlaying->isPlaying.get();
    if (playing != std::exchange(seenPlaying_, playing))
        isPlayingChanged();
    redraw_->notify();
}

void NotchRootView::trackChanged() {
    seenTrack_ = environment_.nowPlaying->track.get();
    environment_.artwork->load(seenTrack_ ? seenTrack_->artworkURL : std::nullopt);
    if (seenTrack_)
        environment_.lyrics->load(*seenTrack_);
    else
        environment_.lyrics->clear();
}

void NotchRootView::isPlayingChanged() {
    if (seenPlaying_)
        form_.isMinimized = false;
    else if (!seenInside_)
        form_.isMinimized = true; // never while hovered
    form_.playPulse = true;
    environment_.tasks.start(endPulse(environment_.mainLoop, weak_from_this()));
}

Task<void> NotchRootView::endPulse(platform::MainLoop& mainLoop,
                                   std::weak_ptr<NotchRootView> weakView) {
    co_await platform::sleep(mainLoop, pulseDuration);
    if (const auto view = weakView.lock())
        view->change(view->form_.playPulse, false);
}

} // namespace brellowind
