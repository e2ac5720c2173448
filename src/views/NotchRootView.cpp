#include "views/NotchRootView.h"

#include "platform/Services.h"

#include <utility>

namespace brellowind {
namespace {

constexpr std::string_view noMusicText = "No music playing";
constexpr std::string_view loadingText = "Loading lyrics…";
constexpr std::string_view noteText = "♪";

} // namespace

NotchRootView::NotchRootView()
    : nextTurn_(platform::services().mainLoop.onNextTurn([this] { refresh(); })) {
    const auto redrawNextTurn = [this] { nextTurn_->request(); };
    subscriptions_.push_back(nowPlaying_->track.observe(redrawNextTurn));
    subscriptions_.push_back(nowPlaying_->isPlaying.observe(redrawNextTurn));
    subscriptions_.push_back(nowPlaying_->positionSec.observe(redrawNextTurn));
    subscriptions_.push_back(lyrics_->state.observe(redrawNextTurn));
}

void NotchRootView::appear() {
    nowPlaying_->start();
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

void NotchRootView::refresh() {
    if (nowPlaying_->track.get() != shownTrack_)
        trackChanged();
    redraw_->notify();
}

void NotchRootView::trackChanged() {
    shownTrack_ = nowPlaying_->track.get();
    if (shownTrack_)
        lyrics_->load(*shownTrack_);
    else
        lyrics_->clear();
}

} // namespace brellowind
