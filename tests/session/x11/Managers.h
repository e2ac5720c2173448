// SPDX-License-Identifier: MIT

#pragma once

#include "companion/Companion.h"
#include "session/x11/XClient.h"

#include <QTemporaryDir>

namespace brellowind::test {

/// A real window manager on the X server of `x`. Ready after construction; fails the test
/// otherwise.
class WindowManager {
public:
    explicit WindowManager(const XClient& x);

    /// Restarts it in the same process and waits until it is ready.
    void restart();

private:
    xcb_window_t checkWindow() const;

    const XClient& x_;
    QTemporaryDir home_;
    demo::Companion process_;
};

/// A real compositing manager on the X server of `x`. Ready after construction, stopped after
/// destruction; fails the test otherwise.
class CompositingManager {
public:
    explicit CompositingManager(const XClient& x);
    CompositingManager(const CompositingManager&) = delete;
    CompositingManager& operator=(const CompositingManager&) = delete;
    ~CompositingManager();

private:
    const XClient& x_;
    QTemporaryDir home_;
    demo::Companion process_;
};

} // namespace brellowind::test
