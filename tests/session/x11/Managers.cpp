// SPDX-License-Identifier: MIT

#include "session/x11/Managers.h"

#include "session/EventLoop.h"
#include "session/SendSignal.h"

#include <QProcessEnvironment>
#include <csignal>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

constexpr auto managerCheck = "_NET_SUPPORTING_WM_CHECK";
constexpr auto oldMark = "_BRELLOWIND_TEST_OLD";
constexpr auto compositingSelection = "_NET_WM_CM_S0";

/// Without the user's settings and files.
QProcessEnvironment environment(const XClient& x, const QTemporaryDir& home) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), x.display());
    for (const auto* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
        environment.insert(QString::fromLatin1(variable), home.path());
    return environment;
}

} // namespace

WindowManager::WindowManager(const XClient& x)
    : x_(x), process_(QStringLiteral("openbox"),
                      {QStringLiteral("--sm-disable"), QStringLiteral("--startup"),
                       QStringLiteral("echo ready")},
                      environment(x, home_)) {
    QString line; // other lines may come first
    do
        line = process_.readLine();
    while (!line.isEmpty() && line != QStringLiteral("ready"));
    EXPECT_FALSE(line.isEmpty()) << "the window manager did not start";
}

/// Waits for the manager's window, since a signal before its handler is installed would kill it.
/// The next window may have the same id, but not this property.
void WindowManager::restart() {
    ASSERT_TRUE(waitUntil([this] { return checkWindow() != XCB_WINDOW_NONE; }));
    const auto write = [this](xcb_window_t window) {
        const std::uint32_t mark = 1;
        xcb_change_property(x_.get(), XCB_PROP_MODE_REPLACE, window, x_.atom(oldMark),
                            XCB_ATOM_CARDINAL, 32, 1, &mark);
        x_.finish();
    };
    write(checkWindow());
    sendSignal(SIGUSR1, process_);
    EXPECT_TRUE(waitUntil([&] {
        write(x_.root()); // wakes a manager that checks the signal only between events
        const auto window = checkWindow();
        const bool isMarked = !x_.property(window, oldMark).isEmpty();
        return window != XCB_WINDOW_NONE && !isMarked && checkWindow() == window;
    })) << "the window manager did not begin again";
}

/// The window that announces a window manager (_NET_SUPPORTING_WM_CHECK).
xcb_window_t WindowManager::checkWindow() const {
    const auto window = x_.property(x_.root(), managerCheck).value(0);
    const bool isThere = x_.property(window, managerCheck).value(0) == window;
    return isThere ? window : xcb_window_t(XCB_WINDOW_NONE);
}

CompositingManager::CompositingManager(const XClient& x)
    : x_(x), process_(QStringLiteral("picom"),
                      {QStringLiteral("--backend"), QStringLiteral("xrender"),
                       QStringLiteral("--config"), QStringLiteral("/dev/null")},
                      environment(x, home_)) {
    EXPECT_TRUE(waitUntil([this] { return x_.isOwned(compositingSelection); }))
        << "the compositing manager did not start";
}

CompositingManager::~CompositingManager() {
    process_.end();
    EXPECT_TRUE(waitUntil([this] { return !x_.isOwned(compositingSelection); }));
}

} // namespace brellowind::test
