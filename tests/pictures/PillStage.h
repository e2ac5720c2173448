// SPDX-License-Identifier: MIT

#pragma once

#include "platform/qt/QtImageDecoder.h"
#include "support/RootViewParts.h"
#include "views/FakeWindowSystem.h"
#include "views/NotchRootView.h"
#include "views/SteppedFrames.h"
#include "views/window/PillWindow.h"

#include <QImage>
#include <QRectF>
#include <QString>
#include <memory>

namespace brellowind::test {

/// Chooses the fonts, the window system and the drawing of pictures: before the application object.
void prepareForPictures();

/// The pill as the program draws it, over a quiet desktop, in a time that stands still until it is
/// told to go on: the same picture on every machine.
class PillStage {
public:
    /// A player that plays nothing, and the pointer far away.
    PillStage();
    ~PillStage();

    /// A song begins whose lyrics are `lrc`; empty: there are none.
    void play(const QString& title, const QString& artist, const QString& lrc, bool withCover);

    /// Plays a song with one line, `line`, and advances time until the pill is at rest.
    void sing(const QString& line, bool withCover = true);

    void setPlaying(bool plays);
    void setPointerInside(bool inside);
    NotchRootView& view() { return *root_; }

    /// Leaves requests for lyrics open from now on.
    void holdLyrics() { answersLyrics_ = false; }

    /// Advances time by 1/60 s.
    void step();

    /// Advances time until all animations have ended.
    void rest();

    /// The whole window, at the screen's scale.
    QImage window();

    /// The window as if there were no pill.
    QImage desktop() const;

    /// The pill with a little of the desktop around it.
    QImage pill();

    /// The open context menu, with what shows through its corners; `hovered` has the pointer.
    QImage menu(const QString& hovered);

    /// The pill in the window, in points, with all that scales it.
    QRectF pillRect() const;

private:
    void answerRequests();
    void runTurns();

    TestMachine machine_;
    platform::QtImageDecoder images_;
    RootViewParts parts_{machine_};
    FakePlayer& spotify_ = machine_.player;
    std::shared_ptr<NotchRootView> root_;
    FakeWindowSystem windowSystem_{machine_.screens, machine_.pointer};
    SteppedFrames clock_;
    std::unique_ptr<PillWindow> content_;
    std::string lyrics_;
    bool answersLyrics_ = true;
    std::size_t answered_ = 0;
    int frames_ = 0;
    int songFrames_ = 0; ///< how far the song is
};

/// The part `rect`, in points, of an image of the window.
QImage cropped(const QImage& window, const QRectF& rect);

} // namespace brellowind::test
