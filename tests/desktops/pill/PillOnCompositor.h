// SPDX-License-Identifier: MIT

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

/// The pill on a compositor without panels, with simulated input. Positions are in points of the
/// desktop.
class PillOnCompositor : public testing::Test {
protected:
    explicit PillOnCompositor(const CompositorOptions& options = {});

    /// The test starts the program when it has set up the desktop.
    ObservedProgram& start();

    /// Starts the program with a player and the lyrics "line", and waits until the pill is at rest.
    ObservedProgram& startSinging();

    /// The first screen.
    QRect screen() const { return compositor->screens().value(0).geometry; }

    /// The window of the pill at its maximum height.
    QRectF area() const;

    /// The rectangle of one of the pill's items.
    QRectF place(const char* item);
    QPointF middleOf(const char* item) { return place(item).center(); }

    /// An empty point of the pill.
    QPointF background() const { return {area().center().x(), area().top() + 12}; }

    /// Moves the pointer into the pill and within it until the pill has detected it.
    bool hoverPill();

    /// Moves the pointer into the pill and waits until the pill is lifted.
    void enterPill();

    /// Moves the pointer out of the pill and waits until the pill is lowered.
    void leavePill();

    /// Opens the context menu with the secondary button and waits for it.
    void openMenuAt(QPointF place);
    void openMenu() { openMenuAt(middleOf("lyricLine")); }

    bool menuCloses();

    /// The middle of an entry of the open context menu.
    QPointF middleOfEntry(const char* text);

    /// Opens the context menu and presses an entry of it.
    void choose(const char* entry);

    /// The full-screen window below the pill.
    PressLog& below();
    static QColor colourBelow() { return {0x33, 0x66, 0xcc}; }

    /// A screenshot of the first screen.
    Picture picture() const;

    /// In a screenshot of the first screen, in pixels: the part of the pill's window that differs
    /// from the window below.
    QRect silhouette(const Picture& picture) const;

    /// Whether the pill has its size at `scale` pixels to a point, in the middle of the top edge.
    bool isInPlace(const Picture& picture, double scale);

    /// Waits until `holds` is true for a screenshot of the first screen, and saves the last one
    /// under `name` for review.
    testing::AssertionResult shows(const char* name,
                                   const std::function<bool(const Picture&)>& holds) const;

    std::unique_ptr<Compositor> compositor;
    demo::LoopbackServer service;
    std::optional<PlayerProcess> player;
    std::optional<PressLog> below_;
    std::optional<ObservedProgram> program;
};

} // namespace brellowind::test
