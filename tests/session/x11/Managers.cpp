#include "session/x11/Managers.h"

#include "session/EventLoop.h"

#include <QProcessEnvironment>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

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
    : process_(QStringLiteral("openbox"),
               {QStringLiteral("--sm-disable"), QStringLiteral("--startup"),
                QStringLiteral("echo ready")},
               environment(x, home_)) {
    QString line; // it may say other things before
    do
        line = process_.readLine();
    while (!line.isEmpty() && line != QStringLiteral("ready"));
    EXPECT_FALSE(line.isEmpty()) << "the window manager did not start";
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
