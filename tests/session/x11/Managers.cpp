#include "session/x11/Managers.h"

#include "session/EventLoop.h"

#include <gtest/gtest.h>

namespace brellowind::test {

WindowManager::WindowManager(const Desktop& desktop, const XClient& x)
    : process_(QStringLiteral("openbox"), {QStringLiteral("--sm-disable")}, desktop.environment()) {
    EXPECT_TRUE(waitUntil([&] {
        return !x.property(x.root(), "_NET_SUPPORTING_WM_CHECK").isEmpty();
    })) << "the window manager did not start";
}

Compositor::Compositor(const Desktop& desktop, const XClient& x)
    : process_(QStringLiteral("picom"),
               {QStringLiteral("--backend"), QStringLiteral("xrender"), QStringLiteral("--config"),
                QStringLiteral("/dev/null")},
               desktop.environment()) {
    EXPECT_TRUE(waitUntil([&] { return x.isOwned("_NET_WM_CM_S0"); }))
        << "the compositing manager did not start";
}

} // namespace brellowind::test
