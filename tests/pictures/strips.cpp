// SPDX-License-Identifier: MIT

#include "pictures/PillStage.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <cstdio>
#include <functional>

using namespace brellowind::test;

namespace {

/// A motion, how it begins, and how many sixtieths of a second are worth seeing.
struct Motion {
    const char* name;
    std::function<void(PillStage&)> prepare;
    std::function<void(PillStage&)> begin;
    int frames;
    QRectF seen; ///< of the window, in points
    int columns = 6;
    int steps = 1; ///< sixtieths of a second from one picture to the next
};

void sing(PillStage& stage) {
    stage.sing(QStringLiteral("Hold the light, hold it low"));
}

void singTwo(PillStage& stage) {
    stage.play(QStringLiteral("Song"), QStringLiteral("Artist"),
               QStringLiteral("[00:00.00]Hold the light, hold it low\n"
                              "[00:03.40]Now the kettle keeps the tempo, now the rain"),
               true);
    stage.rest();
}

/// A line that is wider than the window, with another one 6 seconds later.
void singLong(PillStage& stage) {
    stage.play(
        QStringLiteral("Song"), QStringLiteral("Artist"),
        QStringLiteral("[00:00.00]and somebody left a saucer on the windowsill for the moon, "
                       "and the moon came down to drink, and the cat looked on\n"
                       "[00:06.00]Hold the light, hold it low"),
        true);
}

void nothing(PillStage&) {}

constexpr QRectF narrow(140, 0, 360, 104);
constexpr QRectF wide(100, 0, 440, 76);
constexpr QRectF whole(0, 0, 640, 76);
constexpr QRectF panel(120, 0, 400, 470);

const Motion motions[] = {
    {"line-change", singTwo, nothing, 36, wide},
    {"minimise", sing, [](PillStage& stage) { stage.view().tapBackground(); }, 36, narrow},
    {"restore",
     [](PillStage& stage) {
         sing(stage);
         stage.view().tapBackground();
         stage.rest();
     },
     [](PillStage& stage) { stage.view().tapBackground(); }, 36, narrow},
    {"expand", sing, [](PillStage& stage) { stage.view().tapCover(); }, 36, panel},
    {"close",
     [](PillStage& stage) {
         sing(stage);
         stage.view().tapCover();
         stage.rest();
     },
     [](PillStage& stage) { stage.view().tapArtwork(); }, 36, panel},
    {"pulse",
     [](PillStage& stage) {
         sing(stage);
         stage.setPointerInside(true);
         stage.rest();
     },
     [](PillStage& stage) { stage.setPlaying(false); }, 30, narrow},
    {"hover", sing, [](PillStage& stage) { stage.setPointerInside(true); }, 30, narrow},
    {"cover-hover", sing, [](PillStage& stage) { stage.view().hoverCover(true); }, 24,
     QRectF(170, 0, 80, 60)},
    {"waveform-hover", sing, [](PillStage& stage) { stage.view().hoverWaveform(true); }, 24,
     QRectF(400, 0, 80, 60)},
    {"glide", singLong, nothing, 28, whole, 2, 15},
};

/// The frames of a motion from left to right and from top to bottom.
QImage strip(const Motion& motion) {
    PillStage stage;
    motion.prepare(stage);
    motion.begin(stage);
    const double scale = QGuiApplication::primaryScreen()->devicePixelRatio();
    const QSize frame = (motion.seen.size() * scale).toSize();
    const int rows = (motion.frames + motion.columns - 1) / motion.columns;
    QImage all(frame.width() * motion.columns, frame.height() * rows, QImage::Format_RGB32);
    all.fill(Qt::white);
    QPainter painter(&all);
    for (int i = 0; i < motion.frames; ++i) {
        QImage shown = cropped(stage.window(), motion.seen);
        shown.setDevicePixelRatio(1);
        painter.drawImage(i % motion.columns * frame.width(), i / motion.columns * frame.height(),
                          shown);
        for (int step = 0; step < motion.steps; ++step)
            stage.step();
    }
    return all;
}

} // namespace

/// Writes one picture for each motion into the folder that it is given.
int main(int argc, char** argv) {
    prepareForPictures();
    const QGuiApplication application(argc, argv);
    if (argc != 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        std::fprintf(stderr, "usage: brellowind-strips FOLDER\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const int scale = static_cast<int>(QGuiApplication::primaryScreen()->devicePixelRatio());
    for (const auto& motion : motions) {
        const QString file = folder.filePath(
            QStringLiteral("%1@%2x.png").arg(QString::fromLatin1(motion.name)).arg(scale));
        if (!strip(motion).save(file)) {
            std::fprintf(stderr, "brellowind-strips: %s cannot be written\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
