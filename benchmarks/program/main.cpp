#include "Commands.h"
#include "FrameLog.h"
#include "app/BrellowindApp.h"
#include "app/CompiledConstants.h"
#include "views/window/NotchView.h"

#include <QGuiApplication>
#include <cstdio>

using namespace brellowind;

int main(int argc, char** argv) {
    BrellowindApp::prepare();
    QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: brellowind-measured LYRICS-ORIGIN\n");
        return 2;
    }
    auto constants = compiledConstants();
    constants.lyricsOrigin = argv[1];
    constants.updateFeedURL = constants.lyricsOrigin + "/latest.json"; // nothing leaves the machine
    BrellowindApp app(constants);
    if (!app.claimDisplay())
        return 1;
    app.launch();
    benchmarks::FrameLog frames(app.window());
    benchmarks::Commands commands(app, frames);
    return QGuiApplication::exec();
}
