#include "PillObserver.h"
#include "app/BrellowindApp.h"
#include "app/CompiledConstants.h"

#include <QGuiApplication>
#include <cstdio>

int main(int argc, char** argv) {
    brellowind::BrellowindApp::prepare();
    QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: brellowind-observed LYRICS-ORIGIN\n");
        return 2;
    }
    auto constants = brellowind::compiledConstants();
    constants.lyricsOrigin = argv[1];
    brellowind::BrellowindApp app(constants);
    app.launch();
    brellowind::test::PillObserver observer(app.window());
    if (!observer.listen()) {
        std::fprintf(stderr, "brellowind-observed: the pill cannot be observed\n");
        return 1;
    }
    std::printf("ready\n");
    std::fflush(stdout);
    return QGuiApplication::exec();
}
