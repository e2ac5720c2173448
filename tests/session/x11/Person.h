#pragma once

#include "session/x11/XClient.h"

namespace brellowind::test {

/// A person with a pointer. What it does reaches every program as if a real device did it.
class Person {
public:
    static constexpr int primary = 1;
    static constexpr int secondary = 3;

    explicit Person(const XClient& x) : x_(x) {}

    /// Moves the pointer to a pixel.
    void pointAt(QPoint pixel);

    /// Presses a button where the pointer is and keeps it down, until it is released.
    void hold(int button = primary);
    void release(int button = primary);

    /// Presses and releases a button where the pointer is.
    void press(int button = primary);

    /// Moves there and presses.
    void pressAt(QPoint pixel, int button = primary);

    void pressEscape();

private:
    void fake(int event, int detail, QPoint place);

    const XClient& x_;
};

} // namespace brellowind::test
