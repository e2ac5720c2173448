#include "session/Managers.h"

#include "session/EventLoop.h"

#include <QProcessEnvironment>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

constexpr auto compositingSelection = "_NET_WM_CM_S0";

/// Without the settings and files of whoever runs the test.
QProcessEnvironment environment(const QString& home) {
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const auto* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
        environment.insert(QString::fromLatin1(variable), home);
    return environment;
}

} // namespace

WindowManager::WindowManager()
    : process_(QStringLiteral("openbox"),
               {QStringLiteral("--sm-disable"), QStringLiteral("--startup"),
                QStringLiteral("echo ready")},
               environment(home_.path())) {
    QString line; // it may say other things before
    do
        line = process_.readLine();
    while (!line.isEmpty() && line != QStringLiteral("ready"));
    EXPECT_FALSE(line.isEmpty()) << "the window manager did not start";
}

CompositingManagerProcess::CompositingManagerProcess(OtherProgram& witness)
    : witness_(witness),
      process_(QStringLiteral("picom"), {QStringLiteral("--backend"), QStringLiteral("xrender"),
                                         QStringLiteral("--config"), QStringLiteral("/dev/null")}) {
    EXPECT_TRUE(waitUntil([this] { return witness_.selectionOwner(compositingSelection) != 0; }))
        << "the compositing manager did not start";
}

CompositingManagerProcess::~CompositingManagerProcess() {
    process_.end();
    EXPECT_TRUE(waitUntil([this] { return witness_.selectionOwner(compositingSelection) == 0; }));
}

} // namespace brellowind::test
