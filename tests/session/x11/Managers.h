#pragma once

#include "companion/Companion.h"
#include "session/x11/XClient.h"

#include <QTemporaryDir>

namespace brellowind::test {

/// A real window manager on the X server that `x` is a client of. It manages once this is made;
/// fails the running test otherwise.
class WindowManager {
public:
    explicit WindowManager(const XClient& x);

    /// Has it begin again in the same process, and waits until it manages again.
    void restart();

private:
    xcb_window_t checkWindow() const;

    const XClient& x_;
    QTemporaryDir home_;
    demo::Companion process_;
};

/// A real compositing manager on the X server that `x` is a client of, at work once this is made
/// and gone once this is; fails the running test otherwise.
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
