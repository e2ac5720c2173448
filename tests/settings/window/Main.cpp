// SPDX-License-Identifier: MIT

#include <QAccessible>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QAccessible::setActive(true); // as with a screen reader
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
