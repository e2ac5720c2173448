// SPDX-License-Identifier: MIT

#include "desktops/Compositor.h"
#include "desktops/PressLog.h"
#include "session/EventLoop.h"

#include <QCoreApplication>
#include <QDir>
#include <chrono>
#include <cstdio>

// Pictures of the README: the lifted pill on each of the compositors.

using namespace brellowind::test;

namespace {

constexpr QPointF onPill(640, 12);
constexpr QRect crop(240, 0, 800, 170); ///< points of the screen

bool takePicture(const QString& name, const QDir& folder) {
    CompositorOptions options;
    options.xWayland = name == QLatin1String("gnome-shell");
    options.scale = 2;
    const auto compositor = Compositor::make(name, options);
    const auto below = PressLog::fullScreen(*compositor, QColor(0x2f, 0x5d, 0x7c));
    const auto demo = compositor->start(QStringLiteral(BRELLOWIND_DEMO));
    compositor->movePointerTo(onPill + QPointF(0, 300));
    runFor(std::chrono::seconds(9)); // until a line is sung
    compositor->movePointerTo(onPill);
    compositor->movePointerBy({1, 0});
    runFor(std::chrono::seconds(1));
    const QImage screen = compositor->screenshot();
    const int scale = screen.width() / options.size.width();
    const QRect pixels(crop.topLeft() * scale, crop.size() * scale);
    return screen.copy(pixels).save(folder.filePath(name + QStringLiteral(".png")));
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc != 2 || !QDir(QString::fromLocal8Bit(argv[1])).exists()) {
        std::fprintf(stderr, "usage: brellowind-desktop-pictures FOLDER\n");
        return 2;
    }
    try {
        for (const auto& name :
             {QStringLiteral("sway"), QStringLiteral("kwin"), QStringLiteral("gnome-shell")})
            if (!takePicture(name, QDir(QString::fromLocal8Bit(argv[1])))) {
                std::fprintf(stderr, "brellowind-desktop-pictures: the pictures cannot be saved\n");
                return 1;
            }
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "brellowind-desktop-pictures: %s\n", failure.what());
        return 1;
    }
    return 0;
}
