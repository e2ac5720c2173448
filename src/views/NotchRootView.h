#pragma once

#include "foundation/Geometry.h"
#include "foundation/Observers.h"
#include "foundation/Task.h"
#include "lyrics/LyricsStore.h"
#include "notch/HoverMonitor.h"
#include "notch/WindowInteractivity.h"
#include "platform/MainLoop.h"
#include "playback/NowPlaying.h"
#include "views/Artwork.h"

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace brellowind {

/// What the pill shows and does. It owns the long-lived state of the notch and wires playback to
/// lyrics: every change of track starts a lyrics load and an artwork load. Main thread only.
class NotchRootView : public std::enable_shared_from_this<NotchRootView> {
public:
    /// How the pill looks, beside its texts and its cover.
    struct Form {
        bool isMinimized = false;     ///< only the notch band, without the lyric line
        bool isArtExpanded = false;   ///< the artwork panel, whatever `isMinimized` says
        bool playPulse = false;       ///< for a moment after play or pause
        bool hovered = false;         ///< the pointer is over the pill
        bool coverHovered = false;    ///< the pointer is over the cover thumbnail
        bool grabberHovered = false;  ///< the pointer is over the grabber
        bool waveformHovered = false; ///< the pointer is over the playing indicator

        bool operator==(const Form&) const = default;
    };

    /// What the view asks of those around it.
    struct Environment {
        WindowInteractivity::WindowFinder window; ///< finds the window that the pill is shown in
        std::function<void()> openSettings;       ///< opens the settings window, or raises it
    };

    static std::shared_ptr<NotchRootView> create(Environment environment);

    NotchRootView(const NotchRootView&) = delete;
    NotchRootView& operator=(const NotchRootView&) = delete;

    /// Starts the monitors. Called once, when the view is first shown.
    void appear();

    /// The text of the pill, UTF-8, valid until the next turn of the main loop. Cheap enough for
    /// every redraw: it allocates nothing.
    std::string_view currentLineText() const;

    const Form& form() const { return form_; }
    const NowPlaying& nowPlaying() const { return *nowPlaying_; }
    const LyricsStore& lyrics() const { return *lyrics_; }
    const Artwork& artwork() const { return *artwork_; }

    /// Calls `redraw` on each turn of the main loop in which something that the view shows may have
    /// changed.
    Subscription onRedraw(Observers::Callback redraw);

    /// The size of the pill as it is laid out, whenever that changes.
    void sizeChanged(Size size) { hover_->currentSize = size; }

    void hoverCover(bool inside);
    void hoverGrabber(bool inside);
    void hoverWaveform(bool inside);

    void tapCover();      ///< opens the artwork panel
    void tapWaveform();   ///< plays or pauses
    void tapGrabber();    ///< closes the artwork panel, else minimises or restores the pill
    void tapArtwork();    ///< closes the artwork panel
    void tapBackground(); ///< minimises or restores the pill

    // The entries of the context menu.
    void openSettings();
    void checkForUpdates(); ///< shows the check in the settings window
    void quit();

private:
    explicit NotchRootView(Environment environment);

    void refresh();
    void trackChanged();
    void isPlayingChanged();
    static Task<void> endPulse(std::weak_ptr<NotchRootView> view);
    void loadArtwork(const std::optional<std::string>& url) { artwork_->load(url); }

    std::shared_ptr<NowPlaying> nowPlaying_ = NowPlaying::create();
    std::shared_ptr<LyricsStore> lyrics_ = LyricsStore::create();
    std::shared_ptr<HoverMonitor> hover_ = HoverMonitor::create();
    std::shared_ptr<Artwork> artwork_ = Artwork::create();
    WindowInteractivity interactivity_;
    std::function<void()> openSettings_;
    Form form_;
    std::optional<Track> seenTrack_;
    bool seenInside_ = false;
    bool seenPlaying_ = false;
    std::shared_ptr<Observers> redraw_ = std::make_shared<Observers>();
    std::unique_ptr<platform::NextTurn> nextTurn_;
    std::vector<Subscription> subscriptions_;
};

} // namespace brellowind
