// SPDX-License-Identifier: MIT

#include "Commands.h"

#include "app/BrellowindApp.h"
#include "views/NotchRootView.h"
#include "views/window/PillWindow.h"

#include <QGuiApplication>
#include <cstdio>
#include <iostream>
#include <nlohmann/json.hpp>

namespace brellowind::benchmarks {

using nlohmann::json;

Commands::Commands(BrellowindApp& app, FrameLog& frames) : app_(app), frames_(frames) {
    reader_ = std::thread([this] { read(); });
}

Commands::~Commands() {
    reader_.join(); // the input is closed before the program is ended
}

void Commands::read() {
    std::string command;
    while (std::getline(std::cin, command))
        QMetaObject::invokeMethod(this, [this, command] {
            std::printf("%s\n", answer(command).c_str());
            std::fflush(stdout);
        });
    QMetaObject::invokeMethod(this, [] { QGuiApplication::quit(); });
}

std::string Commands::answer(const std::string& command) {
    auto& view = app_.rootView();
    if (command == "panel")
        view.tapCover();
    else if (command == "close panel")
        view.tapArtwork();
    else if (command == "background")
        view.tapBackground();
    else if (command == "toggle")
        view.tapWaveform();
    else if (command == "hide waveform")
        view.hoverWaveform(true);
    else if (command == "settings")
        view.openSettings();
    else if (command == "close settings")
        closeSettings();
    else if (command == "start frames")
        frames_.start();
    else if (command == "frames")
        return json(frames_.durations()).dump();
    else if (command == "counts")
        return json{{"frames", frames_.frames()}}.dump();
    else if (command == "line")
        return lineRect();
    else if (command == "text")
        return std::string(view.currentLineText());
    else
        return "unknown";
    return "done";
}

/// The rectangle of the lyric line on the screen, in pixels.
std::string Commands::lineRect() const {
    const auto* line = app_.window().root().findChild<Item*>(QStringLiteral("lyricLine"));
    const double scale = app_.window().devicePixelRatio();
    const QRectF rect = line->mapRectToScene(line->boundingRect());
    const QPoint origin = app_.window().mapToGlobal(QPoint(0, 0));
    return json{origin.x() + rect.x() * scale, origin.y() + rect.y() * scale, rect.width() * scale,
                rect.height() * scale}
        .dump();
}

void Commands::closeSettings() {
    const auto windows = QGuiApplication::topLevelWindows();
    for (auto* window : windows)
        if (window != &app_.window() && window->isVisible())
            window->close();
}

} // namespace brellowind::benchmarks
