#pragma once

#include "desktops/Compositor.h"
#include "desktops/PressLog.h"
#include "desktops/pill/Picture.h"
#include "e2e/ObservedProgram.h"
#include "loopback/LoopbackServer.h"
#include "session/EventLoop.h"
#include "session/PlayerProcess.h"

#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>

namespace brellowind::test {

/// The pill on a compositor without panels, and a person with a pointer and a keyboard. Places are
/// in points of the desktop.
class PillOnCompositor : public testing::Test {
protected:
    explicit PillOnCompositor(const CompositorOptions& options = {});

    /// The program is started by the test, once the desktop is as the test wants it.
    ObservedProgram& start();

    /// Starts the program with a player that sings "line", and waits until the pill rests.
    ObservedProgram& startSinging();

    /// The first screen.
    QRect screen() const { return compositor->screens().value(0).geometry; }

    /// The window of the pill, as high as it ever is.
    QRectF area() const;

    /// Where one of the pill's items is.
    QRectF place(const char* item);
    QPointF middleOf(const char* item) { return place(item).center(); }

    /// A place of the pill that shows nothing.
    QPointF background() const { return {area().center().x(), area().top() + 12}; }

    /// Moves the pointer into the pill and on within it, as a mouse does, until the pill knows.
    bool hoverPill();

    /// Moves the pointer into the pill and waits until the pill is lifted.
    void enterPill();

    /// Moves the pointer out of the pill as a mouse does and waits until the pill is back.
    void leavePill();

    /// Presses the secondary button on the pill and waits for the context menu.
    void openMenuAt(QPointF place);
    void openMenu() { openMenuAt(middleOf("lyricLine")); }

    bool menuCloses();

    /// The middle of an entry of the open context menu.
    QPointF middleOfEntry(const char* text);

    /// Opens the context menu and presses an entry of it.
    void choose(const char* entry);

    /// The window beneath the pill, which covers the whole screen.
    PressLog& below();
    static QColor colourBelow() { return {0x33, 0x66, 0xcc}; }

    /// What the first screen shows.
    Picture picture() const;

    /// In a picture of the first screen, in pixels: what lies in the pill's window and is not of
    /// the window below.
    QRect silhouette(const Picture& picture) const;

    /// Waits until the first screen shows what `holds`, and keeps the picture under `name` for
    /// people to look at, either way.
    testing::AssertionResult shows(const char* name,
                                   const std::function<bool(const Picture&)>& holds) const;

    std::unique_ptr<Compositor> compositor;
    demo::LoopbackServer service;
    std::optional<PlayerProcess> player;
    std::optional<PressLog> below_;
    std::optional<ObservedProgram> program;
};

} // namespace brellowind::test
