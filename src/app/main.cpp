// SPDX-License-Identifier: MIT

#include "app/BrellowindApp.h"
#include "app/CompiledConstants.h"

int main(int argc, char** argv) {
    using namespace brellowind;
    argc = 1; // arguments are ignored
    const auto constants = compiledConstants();
    const auto machine = platform::makeMachine(argc, argv, constants);
    if (!machine)
        return 1;
    BrellowindApp app(*machine, constants);
    if (!app.claimSession())
        return 0;
    app.launch();
    return machine->run();
}
