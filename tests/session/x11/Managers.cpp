#include "session/x11/Managers.h"

#include "session/EventLoop.h"

#include <QProcessEnvironment>
#include <csignal>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

constexpr auto managerCheck = "_NET_SUPPORTING_WM_CHECK";
constexpr auto managerSelection = "WM_S0";
constexpr auto oldMark = "_BRELLOWIND_TEST_OLD";
constexpr auto compositingSelection = "_NET_WM_CM_S0";

/// Without the settings and files of whoever runs the test.
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
    QString line; // it may say other things before
    do
        line = process_.readLine();
    while (!line.isEmpty() && line != QStringLiteral("ready"));
    EXPECT_FALSE(line.isEmpty()) << "the window manager did not start";
}

/// Its window may come back with the same number, but not with what was written on the old one.
void WindowManager::restart() {
    const auto window = [this] { return x_.property(x_.root(), managerCheck).value(0); };
    const xcb_atom_t mark = x_.atom(oldMark);
    EXPECT_NE(window(), 0U);
    xcb_change_property(x_.get(), XCB_PROP_MODE_REPLACE, window(), mark, XCB_ATOM_CARDINAL, 32, 1,
                        &mark);
    x_.finish();
    // As `openbox --restart` asks for it, but a manager that is only starting hears a signal, too.
    EXPECT_EQ(::kill(static_cast<pid_t>(process_.processId()), SIGUSR1), 0);
    EXPECT_TRUE(waitUntil([&] {
        return x_.isOwned(managerSelection) && !x_.geometry(window()).isNull() &&
               x_.property(window(), oldMark).isEmpty();
    })) << "the window manager did not begin again";
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
