// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Geometry.h"
#include "foundation/Observers.h"
#include "foundation/Task.h"
#include "lyrics/LyricsStore.h"
#include "notch/HoverMonitor.h"
#include "notch/WindowInteractivity.h"
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

/// The presenter of the pill. Owns the state of the notch and connects playback to lyrics: every
/// change of track starts loading lyrics and artwork. Must be owned by a std::shared_ptr. Main
/// thread only.
class NotchRootView : public std::enable_shared_from_this<NotchRootView> {
public:
    /// The visual state of the pill, without its texts and its cover.
    struct Form {
        bool isMinimized = false;     ///< only the notch band, without the lyric line
        bool isArtExpanded = false;   ///< the artwork panel, regardless of `isMinimized`
        bool playPulse = false;       ///< for a moment after play or pause
        bool hovered = false;         ///< the pointer is over the pill
        bool coverHovered = false;    ///< the pointer is over the cover thumbnail
        bool grabberHovered = false;  ///< the pointer is over the grabber
        bool waveformHovered = false; ///< the pointer is over the playing indicator

        bool operator==(const Form&) const = default;
    };

    /// The services and state that the view uses. The references must outlive the view and the
    /// tasks that it starts.
    struct Environment {
        platform::MainLoop& mainLoop;
        TaskRunner& tasks;
        SettingsRouter& router;
        UpdateChecker& updater;
        std::shared_ptr<NowPlaying> nowPlaying;
        std::shared_ptr<LyricsStore> lyrics;
        std::shared_ptr<HoverMonitor> hover;
        std::shared_ptr<Artwork> artwork;
        WindowInteractivity::WindowFinder window; ///< finds the pill's window
        std::function<void()> openSettings;       ///< opens the settings window and raises it
    };

    explicit NotchRootView(Environment environment);

    NotchRootView(const NotchRootView&) = delete;
    NotchRootView& operator=(const NotchRootView&) = delete;

    /// Starts the monitors. Call once, when the view is first shown.
    void appear();

    /// The text of the pill, UTF-8, valid until the next turn of the main loop. Does not allocate.
    std::string_view currentLineText() const;

    /// Seconds of playback until the next line. Returns nullopt after the last line and without
    /// lyrics.
    std::optional<double> timeUntilNextLine() const;

    const Form& form() const { return form_; }
    const NowPlaying& nowPlaying() const { return *environment_.nowPlaying; }
    const LyricsStore& lyrics() const { return *environment_.lyrics; }
    const Artwork& artwork() const { return *environment_.artwork; }

    /// Calls `redraw` on each turn of the main loop in which the content may have changed.
    Subscription onRedraw(Observers::Callback redraw);

    /// Call when the laid-out size of the pill has changed.
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

    // The entries of the context menu. The first two show the General tab of the settings.
    void openSettings();
    void checkForUpdates(); ///< also shows the settings window
    void quit() { environment_.mainLoop.quit(); }

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
