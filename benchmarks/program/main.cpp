// SPDX-License-Identifier: MIT

#include "Commands.h"
#include "FrameLog.h"
#include "app/BrellowindApp.h"
#include "app/CompiledConstants.h"
#include "views/window/PillWindow.h"

#include <cstdio>

using namespace brellowind;

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: brellowind-measured LYRICS-ORIGIN\n");
        return 2;
    }
    auto constants = compiledConstants();
    constants.lyricsOrigin = argv[1];
    constants.updateFeedURL = constants.lyricsOrigin + "/latest.json"; // nothing leaves the machine
    argc = 1;
    const auto machine = platform::makeMachine(argc, argv, constants);
    if (!machine)
        return 1;
    BrellowindApp app(*machine, constants);
    if (!app.claimSession())
        return 1;
    app.launch();
    benchmarks::FrameLog frames(app.window());
    benchmarks::Commands commands(app, frames);
    return machine->run();
}
