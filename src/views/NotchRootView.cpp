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

std::shared_ptr<NotchRootView> NotchRootView::create(Environment environment) {
    return std::shared_ptr<NotchRootView>(new NotchRootView(std::move(environment)));
}

NotchRootView::NotchRootView(Environment environment)
    : environment_(std::move(environment)),
      interactivity_(environment_.mainLoop, environment_.window),
      nextTurn_(environment_.mainLoop.onNextTurn([this] { refresh(); })) {
    const auto redrawNextTurn = [this] { nextTurn_->request(); };
    subscriptions_.push_back(environment_.nowPlaying->track.observe(redrawNextTurn));
    subscriptions_.push_back(environment_.nowPlaying->isPlaying.observe(redrawNextTurn));
    subscriptions_.push_back(environment_.nowPlaying->positionSec.observe(redrawNextTurn));
    subscriptions_.push_back(environment_.lyrics->state.observe(redrawNextTurn));
    subscriptions_.push_back(environment_.hover->isInside.observe(redrawNextTurn));
    subscriptions_.push_back(environment_.artwork->image.observe(redrawNextTurn));
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
    environment_.nowPlaying->togglePlayPause();
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
    environment_.application.activate();
    environment_.openSettings();
}

void NotchRootView::checkForUpdates() {
    environment_.application.activate();
    environment_.router.setSelectedTab(SettingsTab::general);
    environment_.openSettings();
    environment_.tasks.start(environment_.updater.check());
}

void NotchRootView::quit() {
    environment_.application.terminate();
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
    loadArtwork(seenTrack_ ? seenTrack_->artworkURL : std::nullopt);
    if (seenTrack_)
        environment_.lyrics->load(*seenTrack_);
    else
        environment_.lyrics->clear();
}

void NotchRootView::isPlayingChanged() {
    if (seenPlaying_)
        form_.isMinimized = false;
    else if (!seenInside_)
        form_.isMinimized = true; // a pill that is being looked at does not shrink
    form_.playPulse = true;
    environment_.tasks.start(endPulse(environment_.mainLoop, weak_from_this()));
}

Task<void> NotchRootView::endPulse(platform::MainLoop& mainLoop,
                                   std::weak_ptr<NotchRootView> weakView) {
    co_await platform::sleep(mainLoop, pulseDuration);
    if (const auto view = weakView.lock()) {
        view->form_.playPulse = false;
        view->nextTurn_->request();
    }
}

} // namespace brellowind
