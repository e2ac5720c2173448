// SPDX-License-Identifier: MIT

#include "session/Desktop.h"
#include "session/x11/Monitors.h"

#include <QGuiApplication>
#include <gtest/gtest.h>

#ifndef BRELLOWIND_TEST_SCALES
#define BRELLOWIND_TEST_SCALES "" // per monitor, as in "LEFT=1,RIGHT=2"
#endif

/// The main function of tests with a private X server.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    using brellowind::test::Monitors;
    const brellowind::test::XServer server(QStringLiteral("%1x%2x24")
                                               .arg(Monitors::initialSize.width())
                                               .arg(Monitors::initialSize.height()));
    qputenv("DISPLAY", server.display().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:"); // else Qt would start a bus
    qunsetenv("QT_SCALE_FACTOR");
    qputenv("QT_SCREEN_SCALE_FACTORS", QByteArray(BRELLOWIND_TEST_SCALES).replace(',', ';'));
    const QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
