#include "LoopObserver.h"
#include "PillObserver.h"
#include "SettingsObserver.h"
#include "app/BrellowindApp.h"
#include "app/CompiledConstants.h"
#include "views/window/NotchView.h"

#include <QGuiApplication>
#include <cstdio>
#include <string>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: brellowind-observed ORIGIN\n");
        return 2;
    }
    const std::string origin = argv[1];
    argc = 1;
    brellowind::BrellowindApp::prepare();
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("Brellowind"));
    auto constants = brellowind::compiledConstants();
    constants.lyricsOrigin = origin;
    constants.updateFeedURL = origin + "/latest.json";
    brellowind::BrellowindApp app(constants);
    if (!app.claimDisplay())
        return 0;
    app.launch();
    brellowind::test::PillObserver observer(app.window(), app.rootView());
    brellowind::test::LoopObserver loopObserver;
    brellowind::test::SettingsObserver settingsObserver;
    if (!loopObserver.listen() || !settingsObserver.listen() || !observer.listen()) {
        std::fprintf(stderr, "brellowind-observed: the program cannot be observed\n");
        return 1;
    }
    std::printf("ready\n");
    std::fflush(stdout);
    return QGuiApplication::exec();
}
