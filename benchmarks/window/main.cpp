// SPDX-License-Identifier: MIT

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QSGRendererInterface>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <ctime>

int main(int argc, char** argv) {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nItem {}", QUrl());
    QQuickView view(&engine, nullptr);
    view.setContent(QUrl(), &component, component.create());
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
    view.setGeometry(400, 0, 640, 540); // the size of the pill's window
    bool drawn = false;
    QObject::connect(&view, &QQuickWindow::frameSwapped, &view, [&drawn] {
        if (drawn)
            return;
        drawn = true;
        timespec time{};
        clock_gettime(CLOCK_MONOTONIC, &time);
        std::printf("frame %lld%09ld\n", static_cast<long long>(time.tv_sec), time.tv_nsec);
        std::fflush(stdout);
    });
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, [] {});
    timer.start(std::chrono::milliseconds(50));
    view.show();
    return QGuiApplication::exec();
}
