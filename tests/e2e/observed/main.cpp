// SPDX-License-Identifier: MIT

#include "LoopObserver.h"
#include "PillObserver.h"
#include "SettingsObserver.h"
#include "app/BrellowindApp.h"
#include "app/CompiledConstants.h"
#include "views/window/PillWindow.h"

#include <cstdio>
#include <string>

using namespace brellowind;

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: brellowind-observed ORIGIN\n");
        return 2;
    }
    const std::string origin = argv[1];
    auto constants = compiledConstants();
    constants.lyricsOrigin = origin;
    constants.updateFeedURL = origin + "/latest.json";
    constants.websiteURL = origin + "/website";
    constants.socialURL = origin + "/social";
    constants.privacyPolicyURL = origin + "/privacy";
    constants.termsURL = origin + "/terms";
    constants.feedbackEmail = "feedback@brellowind.example";
    constants.legalNotice = "© brellowind.example";
    argc = 1;
    const auto machine = platform::makeMachine(argc, argv, constants);
    if (!machine)
        return 1;
    BrellowindApp app(*machine, constants);
    if (!app.claimSession())
        return 0;
    app.launch();
    test::PillObserver observer(app.window(), app.rootView());
    test::LoopObserver loopObserver;
    test::SettingsObserver settingsObserver;
    if (!loopObserver.listen() || !settingsObserver.listen() || !observer.listen()) {
        std::fprintf(stderr, "brellowind-observed: the program cannot be observed\n");
        return 1;
    }
    std::printf("ready\n");
    std::fflush(stdout);
    return machine->run();
}
