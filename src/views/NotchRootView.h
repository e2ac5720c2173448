#pragma once

#include "foundation/Geometry.h"
#include "foundation/Observers.h"
#include "foundation/Task.h"
#include "lyrics/LyricsStore.h"
#include "notch/HoverMonitor.h"
#include "notch/WindowInteractivity.h"
#include "platform/Application.h"
#include "platform/MainLoop.h"
#include "platform/TaskRunner.h"
#include "playback/NowPlaying.h"
#include "settings/SettingsRouter.h"
#include "settings/UpdateChecker.h"
#include "views/Artwork.h"

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace brellowind {

/// What the pill shows and does. It owns the long-lived state of the notch and wires playback to
/// lyrics: every change of track starts a lyrics load and an artwork load. Held by a
/// std::shared_ptr. Main thread only.
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

    /// What the view shows and what it acts on. The references must outlive it and the tasks that
    /// it starts; the state of the notch is its own.
    struct Environment {
        platform::MainLoop& mainLoop;
        TaskRunner& tasks;
        platform::Application& application;
        SettingsRouter& router;
        UpdateChecker& updater;
        std::shared_ptr<NowPlaying> nowPlaying;
        std::shared_ptr<LyricsStore> lyrics;
        std::shared_ptr<HoverMonitor> hover;
        std::shared_ptr<Artwork> artwork;
        WindowInteractivity::WindowFinder window; ///< finds the window that the pill is shown in
        std::function<void()> openSettings;       ///< opens the settings window, or raises it
    };

    explicit NotchRootView(Environment environment);

    NotchRootView(const NotchRootView&) = delete;
    NotchRootView& operator=(const NotchRootView&) = delete;

    /// Starts the monitors. Called once, when the view is first shown.
    void appear();

    /// The text of the pill, UTF-8, valid until the next turn of the main loop. Allocates nothing.
    std::string_view currentLineText() const;

    /// In how many seconds of playback the next line of the lyrics begins; none after the last one,
    /// and without lyrics.
    std::optional<double> timeUntilNextLine() const;

    const Form& form() const { return form_; }
    const NowPlaying& nowPlaying() const { return *environment_.nowPlaying; }
    const LyricsStore& lyrics() const { return *environment_.lyrics; }
    const Artwork& artwork() const { return *environment_.artwork; }

    /// Calls `redraw` on each turn of the main loop in which what is shown may have changed.
    Subscription onRedraw(Observers::Callback redraw);

    /// The size of the pill as it is laid out, whenever that changes.
    void sizeChanged(Size size) { environment_.hover->currentSize = size; }

    void hoverCover(bool inside) { change(form_.coverHovered, inside); }
    void hoverGrabber(bool inside) { change(form_.grabberHovered, inside); }
    void hoverWaveform(bool inside) { change(form_.waveformHovered, inside); }

    /// Opens the artwork panel.
    void tapCover();

    /// Plays or pauses, if there is a track.
    void tapWaveform();

    /// Closes the artwork panel, else minimises or restores the pill.
    void tapGrabber();

    /// Closes the artwork panel.
    void tapArtwork() { change(form_.isArtExpanded, false); }

    /// Minimises or restores the pill.
    void tapBackground() { change(form_.isMinimized, !form_.isMinimized); }

    bool checksForUpdates() const { return environment_.updater.hasFeed(); }

    // The entries of the context menu. The settings show their General tab.
    void openSettings();
    void checkForUpdates(); ///< shows the check in the settings window
    void quit() { environment_.application.terminate(); }

private:
    void change(bool& ofForm, bool value);
    void refresh();
    void trackChanged();
    void isPlayingChanged();
    static Task<void> endPulse(platform::MainLoop& mainLoop, std::weak_ptr<NotchRootView> view);

    Environment environment_;
    WindowInteractivity interactivity_;
    Form form_;
    std::optional<Track> seenTrack_;
    bool seenInside_ = false;
    bool seenPlaying_ = false;
    std::shared_ptr<Observers> redraw_ = std::make_shared<Observers>();
    std::unique_ptr<platform::NextTurn> nextTurn_;
    std::vector<Subscription> subscriptions_;
};

} // namespace brellowind
