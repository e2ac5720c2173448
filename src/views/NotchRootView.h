#pragma once

#include "foundation/Observers.h"
#include "lyrics/LyricsStore.h"
#include "platform/MainLoop.h"
#include "playback/NowPlaying.h"

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace brellowind {

/// What the pill shows. It owns the long-lived state of the notch and wires playback to lyrics:
/// every change of track starts a lyrics load. Main thread only.
class NotchRootView {
public:
    NotchRootView();
    NotchRootView(const NotchRootView&) = delete;
    NotchRootView& operator=(const NotchRootView&) = delete;

    /// Starts the monitors. Called once, when the view is first shown.
    void appear();

    /// The text of the pill, UTF-8, valid until the next turn of the main loop. Cheap enough for
    /// every redraw: it allocates nothing.
    std::string_view currentLineText() const;

    /// Calls `redraw` on each turn of the main loop in which something that the view shows may have
    /// changed.
    Subscription onRedraw(Observers::Callback redraw);

    const NowPlaying& nowPlaying() const { return *nowPlaying_; }
    const LyricsStore& lyrics() const { return *lyrics_; }

private:
    void refresh();
    void trackChanged();

    std::shared_ptr<NowPlaying> nowPlaying_ = NowPlaying::create();
    std::shared_ptr<LyricsStore> lyrics_ = LyricsStore::create();
    std::optional<Track> shownTrack_;
    std::shared_ptr<Observers> redraw_ = std::make_shared<Observers>();
    std::unique_ptr<platform::NextTurn> nextTurn_;
    std::vector<Subscription> subscriptions_;
};

} // namespace brellowind
