// SPDX-License-Identifier: MIT

#pragma once

#include "e2e/ObservedProgram.h"
#include "session/x11/Person.h"
#include "session/x11/XClient.h"
#include "support/Chance.h"

namespace brellowind::test {

/// A simulated user who points, clicks, and opens the menu and the settings at random.
class RestlessPerson {
public:
    RestlessPerson(const XClient& x, ObservedProgram& program, Chance& chance);

    /// Performs a random action. Closes the menu and the settings afterwards.
    void act();

    /// Moves the pointer away from the pill.
    void leave();

    int movements = 0;
    int clicks = 0;
    int menus = 0;
    int settings = 0; ///< opened and closed

private:
    void point();
    void click();
    void useMenu();
    void useSettings();

    /// Clicks an element of the settings. Returns false if the pill covers it.
    bool press(const char* element);

    /// The middle of the upper edge of the notch window, in pixels.
    QPoint top() const;

    const XClient& x_;
    ObservedProgram& program_;
    Chance& chance_;
    Person person_;
};

} // namespace brellowind::test
