// SPDX-License-Identifier: MIT

#include "pictures/AnimatedPng.h"
#include "pictures/PillStage.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <cstdio>
#include <functional>

using namespace brellowind::test;

namespace {

constexpr QRectF banner(60, 0, 520, 112);
constexpr QRectF tall(60, 0, 520, 484);

const auto lantern = QStringLiteral("We lit a paper lantern at the corner of the day");

QImage shown(PillStage& stage) {
    return cropped(stage.window(), banner);
}

QImage standard() {
    PillStage stage;
    stage.sing(lantern);
    return shown(stage);
}

QImage hovered() {
    PillStage stage;
    stage.sing(lantern);
    stage.setPointerInside(true);
    stage.view().hoverCover(true);
    stage.rest();
    return shown(stage);
}

QImage minimised() {
    PillStage stage;
    stage.sing(lantern);
    stage.view().tapBackground();
    stage.rest();
    return shown(stage);
}

/// Draws the menu, a separate window, over the panel.
QImage artworkWithMenu() {
    PillStage stage;
    stage.sing(QStringLiteral("Hold the light, hold it low"));
    stage.setPointerInside(true);
    stage.view().tapCover();
    stage.rest();
    QImage picture = cropped(stage.window(), tall);
    const QImage menu = stage.menu(QStringLiteral("Open Settings"));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(250, 96);
    QPainterPath outline; // beyond its round corners the menu's window is clear
    outline.addRoundedRect(QRectF(QPointF(0, 0), menu.deviceIndependentSize()), 10, 10);
    painter.setClipPath(outline);
    painter.drawImage(QPointF(0, 0), menu);
    return picture;
}

/// The pill follows the song, is looked at, minimised and brought back.
AnimatedPng animation() {
    constexpr int shownFramesPerSecond = 30;
    AnimatedPng animated(shownFramesPerSecond);
    PillStage stage;
    stage.play(QStringLiteral("Paper Lanterns"), QStringLiteral("The Windowsill Quartet"),
               QStringLiteral("[00:00.00]We lit a paper lantern at the corner of the day\n"
                              "[00:04.20]Hold the light, hold it low\n"
                              "[00:05.80]where the quiet people go\n"
                              "[00:09.40]Every window hums along"),
               true);
    stage.rest();
    const auto run = [&](double seconds) {
        for (int i = 0; i < seconds * shownFramesPerSecond; ++i) {
            animated.append(shown(stage));
            stage.step();
            stage.step();
        }
    };
    run(4.1);
    stage.setPointerInside(true);
    run(0.5);
    stage.view().hoverCover(true);
    run(0.6);
    stage.view().hoverCover(false);
    run(0.2);
    stage.view().tapBackground();
    stage.setPointerInside(false);
    run(0.8);
    stage.view().tapBackground();
    run(1.4);
    return animated;
}

} // namespace

/// Writes the pictures of the README into the folder that it is given.
int main(int argc, char** argv) {
    prepareForPictures();
    const QGuiApplication application(argc, argv);
    if (argc != 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        std::fprintf(stderr, "usage: brellowind-readme-pictures FOLDER\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const bool saved = standard().save(folder.filePath(QStringLiteral("default.png"))) &&
                       hovered().save(folder.filePath(QStringLiteral("hovered.png"))) &&
                       minimised().save(folder.filePath(QStringLiteral("minimised.png"))) &&
                       artworkWithMenu().save(folder.filePath(QStringLiteral("artwork.png"))) &&
                       animation().save(folder.filePath(QStringLiteral("singing.png")));
    if (!saved)
        std::fprintf(stderr, "brellowind-readme-pictures: a picture cannot be written\n");
    return saved ? 0 : 1;
}
