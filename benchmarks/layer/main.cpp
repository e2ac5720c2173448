// SPDX-License-Identifier: MIT

#include "notch/NotchWindow.h"
#include "platform/linux/ScreenLock.h"
#include "platform/linux/machine/SessionWindowSystem.h"
#include "platform/qt/QtMainLoop.h"
#include "platform/qt/QtStartEnvironment.h"

#include <QDBusConnection>
#include <QPainter>
#include <QRasterWindow>
#include <QSurfaceFormat>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <ctime>

using namespace brellowind;

namespace {

/// Reports when it has drawn its first frame, which is transparent.
class Window final : public QRasterWindow {
public:
    Window() {
        QSurfaceFormat transparent;
        transparent.setAlphaBufferSize(8);
        setFormat(transparent);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter(this).fillRect(QRect(QPoint(0, 0), size()), Qt::transparent);
        if (drawn_)
            return;
        drawn_ = true;
        timespec time{};
        clock_gettime(CLOCK_MONOTONIC, &time);
        std::printf("frame %lld%09ld\n", static_cast<long long>(time.tv_sec), time.tv_nsec);
        std::fflush(stdout);
    }

private:
    bool drawn_ = false;
};

} // namespace

int main(int argc, char** argv) {
    platform::QtStartEnvironment::choose();
    const auto application = platform::makeGuiApplication(argc, argv);
    if (!application)
        return 1;
    platform::QtMainLoop mainLoop;
    platform::ScreenLock screenLock(QDBusConnection::sessionBus(), QDBusConnection::systemBus());
    const auto windowSystem = platform::makeWindowSystem(mainLoop, screenLock);
    Window window;
    const auto overlay = windowSystem->makeOverlay(window);
    NotchWindow notch(*overlay, windowSystem->screens());
    notch.show();
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, [] {});
    timer.start(std::chrono::milliseconds(50));
    return QGuiApplication::exec();
}
