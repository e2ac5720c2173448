// SPDX-License-Identifier: MIT

#pragma once

#include "session/x11/XClient.h"

namespace brellowind::test {

/// Simulates a user's pointer with XTEST.
class Person {
public:
    static constexpr int primary = 1;
    static constexpr int secondary = 3;

    explicit Person(const XClient& x) : x_(x) {}

    /// Moves the pointer to a pixel.
    void pointAt(QPoint pixel);

    /// Presses a button without releasing it.
    void hold(int button = primary);
    void release(int button = primary);

    /// Clicks at the pointer's position.
    void press(int button = primary);

    /// Moves the pointer and clicks.
    void pressAt(QPoint pixel, int button = primary);

    void pressEscape();

private:
    void fake(int event, int detail, QPoint place);

    const XClient& x_;
};

} // namespace brellowind::test
