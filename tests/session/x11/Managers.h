#pragma once

#include "companion/Companion.h"
#include "session/Desktop.h"
#include "session/x11/XClient.h"

namespace brellowind::test {

/// A real window manager. It manages once this is made; fails the running test otherwise.
class WindowManager {
public:
    WindowManager(const Desktop& desktop, const XClient& x);

private:
    demo::Companion process_;
};

/// A real compositing manager, at work once this is made; fails the running test otherwise.
class Compositor {
public:
    Compositor(const Desktop& desktop, const XClient& x);

private:
    demo::Companion process_;
};

} // namespace brellowind::test
