#pragma once

#include "e2e/ObservedProgram.h"
#include "session/x11/Person.h"
#include "session/x11/XClient.h"
#include "support/Chance.h"

namespace brellowind::test {

/// A person who cannot leave the pill alone: points, clicks, opens the menu and the settings.
class RestlessPerson {
public:
    RestlessPerson(const XClient& x, ObservedProgram& program, Chance& chance);

    /// One thing of whatever they may do. The menu and the settings are closed afterwards.
    void act();

    /// Points far away from the pill.
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

    /// Presses an element of the settings. False when the pill, which is above them, is in the way.
    bool press(const char* element);

    /// The middle of the upper edge of the notch window, in pixels.
    QPoint top() const;

    const XClient& x_;
    ObservedProgram& program_;
    Chance& chance_;
    Person person_;
};

} // namespace brellowind::test
