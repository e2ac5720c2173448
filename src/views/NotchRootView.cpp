#include "views/NotchRootView.h"

#include "platform/Services.h"
#include "platform/Sleep.h"
#include "settings/SettingsRouter.h"
#include "settings/UpdateChecker.h"

#include <utility>

namespace brellowind {
namespace {

constexpr std::string_view noMusicText = "No music playing";
constexpr std::string_view loadingText = "Loading lyrics…";
constexpr std::string_view noteText = "♪";

constexpr std::chrono::milliseconds pulseDuration{100};

} // namespace

using platform::services;

std::shared_ptr<NotchRootView> NotchRootView::create(Environment environment) {
    return std::shared_ptr<NotchRootView>(new NotchRootView(std::move(environment)));
}

NotchRootView::NotchRootView(Environment environment)
    : interactivity_(std::move(environment.window)),
      openSettings_(std::move(environment.openSettings)),
      nextTurn_(services().mainLoop.onNextTurn([this] { refresh(); })) {
    const auto redrawNextTurn = [this] { nextTurn_->request(); };
    subscriptions_.push_back(nowPlaying_->track.observe(redrawNextTurn));
    subscriptions_.push_back(nowPlaying_->isPlaying.observe(redrawNextTurn));
    subscriptions_.push_back(nowPlaying_->positionSec.observe(redrawNextTurn));
    subscriptions_.push_back(lyrics_->state.observe(redrawNextTurn));
    subscriptions_.push_back(hover_->isInside.observe(redrawNextTurn));
    subscriptions_.push_back(artwork_->image.observe(redrawNextTurn));
}

void NotchRootView::appear() {
    nowPlaying_->start();
    hover_->start();
}

std::string_view NotchRootView::currentLineText() const {
    const auto& track = nowPlaying_->track.get();
    if (!track)
        return noMusicText;
    switch (lyrics_->state->which()) {
    case LyricsState::Case::loading:
        return loadingText;
    case LyricsState::Case::loaded: {
        const auto active = lyrics_->activeIndex(nowPlaying_->positionSec.get());
        if (!active || lyrics_->lines()[*active].text.empty())
            return noteText;
        return lyrics_->lines()[*active].text;
    }
    case LyricsState::Case::idle:
    case LyricsState::Case::plain:
    case LyricsState::Case::notFound:
    case LyricsState::Case::failed:
        break;
    }
    return track->title;
}

Subscription NotchRootView::onRedraw(Observers::Callback redraw) {
    return redraw_->add(std::move(redraw));
}

void NotchRootView::hoverCover(bool inside) {
    form_.coverHovered = inside;
    nextTurn_->request();
}

void NotchRootView::hoverGrabber(bool inside) {
    form_.grabberHovered = inside;
    nextTurn_->request();
}

void NotchRootView::hoverWaveform(bool inside) {
    form_.waveformHovered = inside;
    nextTurn_->request();
}

void NotchRootView::tapCover() {
    form_.isMinimized = false;
    form_.isArtExpanded = true;
    nextTurn_->request();
}

void NotchRootView::tapWaveform() {
    nowPlaying_->togglePlayPause();
}

void NotchRootView::tapGrabber() {
    if (form_.isArtExpanded)
        tapArtwork();
    else
        tapBackground();
}

void NotchRootView::tapArtwork() {
    form_.isArtExpanded = false;
    nextTurn_->request();
}

void NotchRootView::tapBackground() {
    form_.isMinimized = !form_.isMinimized;
    nextTurn_->request();
}

void NotchRootView::openSettings() {
    services().application.activate();
    openSettings_();
}

void NotchRootView::checkForUpdates() {
    services().application.activate();
    SettingsRouter::shared().setSelectedTab(SettingsTab::general);
    openSettings_();
    services().tasks.start(UpdateChecker::shared().check());
}

void NotchRootView::quit() {
    services().application.terminate();
}

void NotchRootView::refresh() {
    if (nowPlaying_->track.get() != seenTrack_)
        trackChanged();
    const bool inside = hover_->isInside.get();
    if (inside != std::exchange(seenInside_, inside)) {
        form_.hovered = inside;
        interactivity_.update(inside);
    }
    const bool playing = nowPlaying_->isPlaying.get();
    if (playing != std::exchange(seenPlaying_, playing))
        isPlayingChanged();
    redraw_->notify();
}

void NotchRootView::trackChanged() {
    seenTrack_ = nowPlaying_->track.get();
    loadArtwork(seenTrack_ ? seenTrack_->artworkURL : std::nullopt);
    if (seenTrack_)
        lyrics_->load(*seenTrack_);
    else
        lyrics_->clear();
}

void NotchRootView::isPlayingChanged() {
    if (seenPlaying_)
        form_.isMinimized = false;
    else if (!seenInside_)
        form_.isMinimized = true; // a pill that is being looked at does not shrink
    form_.playPulse = true;
    services().tasks.start(endPulse(weak_from_this()));
}

Task<void> NotchRootView::endPulse(std::weak_ptr<NotchRootView> weakView) {
    co_await platform::sleep(pulseDuration);
    if (const auto view = weakView.lock()) {
        view->form_.playPulse = false;
        view->nextTurn_->request();
    }
}

} // namespace brellowind
