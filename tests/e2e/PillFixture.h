// SPDX-License-Identifier: MIT

#pragma once

#include "e2e/ObservedProgram.h"
#include "loopback/LoopbackServer.h"
#include "session/Desktop.h"
#include "session/EventLoop.h"
#include "session/PlayerProcess.h"
#include "session/x11/Managers.h"
#include "session/x11/Person.h"
#include "session/x11/PlainWindow.h"
#include "session/x11/XClient.h"

#include <gtest/gtest.h>
#include <optional>
#include <utility>

namespace brellowind::test {

/// The pill on a desktop with a window manager and a simulated pointer.
class PillOnDesktop : public testing::Test {
protected:
    /// `screen` such as "1440x900x24"; `scale` pixels are one point.
    explicit PillOnDesktop(const QString& screen = QStringLiteral("1440x900x24"), int scale = 1);

    /// The test starts the program when it has set up the desktop.
    ObservedProgram& start();

    /// Starts the program with a player and the lyrics "line", and waits until the pill is at rest.
    ObservedProgram& startSinging();

    /// The middle of one of the pill's items on the screen, in pixels.
    QPoint middleOf(const char* item);

    /// Moves the pointer into the pill and waits until the pill is lifted.
    void enterPill();

    /// Moves the pointer away and waits until the pill is lowered.
    void leavePill();

    /// Opens the context menu in the middle of the pill.
    void openMenu();

    /// The middle of an entry of the open context menu on the screen, in pixels.
    QPoint middleOfEntry(const char* text);

    /// Opens the context menu and presses an entry of it.
    void choose(const char* entry);

    /// The full-screen window below the pill.
    PlainWindow& below();

    int scale;
    QSize screenSize;
    Desktop desktop;
    XClient x{desktop.xServer.display()};
    Person person{x};
    std::optional<WindowManager> windowManager{std::in_place, x};
    demo::LoopbackServer service;
    QProcessEnvironment environment; ///< additional variables for the program
    std::optional<PlayerProcess> player;
    std::optional<PlainWindow> below_;
    std::optional<ObservedProgram> program;
};

} // namespace brellowind::test
