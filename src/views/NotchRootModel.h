#pragma once

#include "foundation/Observers.h"
#include "views/NotchRootView.h"

#include <QImage>
#include <QObject>
#include <QString>
#include <memory>
#include <string>

namespace brellowind {

/// What the pill is drawn from, and whom it tells what happens there. A property notifies only
/// when it really differs.
class NotchRootModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString currentLineText READ currentLineText NOTIFY currentLineTextChanged)
    Q_PROPERTY(QString title READ title NOTIFY trackChanged)
    Q_PROPERTY(QString artist READ artist NOTIFY trackChanged)
    Q_PROPERTY(QImage coverImage READ coverImage NOTIFY coverImageChanged)
    Q_PROPERTY(bool isPlaying READ isPlaying NOTIFY isPlayingChanged)
    Q_PROPERTY(bool isMinimized READ isMinimized NOTIFY formChanged)
    Q_PROPERTY(bool isArtExpanded READ isArtExpanded NOTIFY formChanged)
    Q_PROPERTY(bool playPulse READ playPulse NOTIFY formChanged)
    Q_PROPERTY(bool hovered READ hovered NOTIFY formChanged)
    Q_PROPERTY(bool coverHovered READ coverHovered NOTIFY formChanged)
    Q_PROPERTY(bool grabberHovered READ grabberHovered NOTIFY formChanged)
    Q_PROPERTY(bool waveformHovered READ waveformHovered NOTIFY formChanged)

public:
    explicit NotchRootModel(std::shared_ptr<NotchRootView> view, QObject* parent = nullptr);

    QString currentLineText() const { return currentLineText_; }
    QString title() const { return title_; }
    QString artist() const { return artist_; }
    QImage coverImage() const { return coverImage_; }
    bool isPlaying() const { return isPlaying_; }
    bool isMinimized() const { return form_.isMinimized; }
    bool isArtExpanded() const { return form_.isArtExpanded; }
    bool playPulse() const { return form_.playPulse; }
    bool hovered() const { return form_.hovered; }
    bool coverHovered() const { return form_.coverHovered; }
    bool grabberHovered() const { return form_.grabberHovered; }
    bool waveformHovered() const { return form_.waveformHovered; }

    void sizeChanged(double width, double height) { view_->sizeChanged({width, height}); }
    void hoverCover(bool inside) { view_->hoverCover(inside); }
    void hoverGrabber(bool inside) { view_->hoverGrabber(inside); }
    void hoverWaveform(bool inside) { view_->hoverWaveform(inside); }
    void tapCover() { view_->tapCover(); }
    void tapWaveform() { view_->tapWaveform(); }
    void tapGrabber() { view_->tapGrabber(); }
    void tapArtwork() { view_->tapArtwork(); }
    void tapBackground() { view_->tapBackground(); }
    void openSettings() { view_->openSettings(); }
    void checkForUpdates() { view_->checkForUpdates(); }
    void quit() { view_->quit(); }

Q_SIGNALS:
    void currentLineTextChanged();
    void trackChanged();
    void coverImageChanged();
    void isPlayingChanged();
    void formChanged();

private:
    void redraw();
    void redrawTrack();

    std::shared_ptr<NotchRootView> view_;
    NotchRootView::Form form_;
    bool isPlaying_ = false;
    std::string shownLineText_; ///< `currentLineText_` as it came, to compare without converting
    QString currentLineText_;
    std::optional<Track> shownTrack_;
    QString title_;
    QString artist_;
    std::shared_ptr<const platform::Image> shownImage_;
    QImage coverImage_;
    Subscription redraws_;
};

} // namespace brellowind
