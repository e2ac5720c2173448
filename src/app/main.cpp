// SPDX-License-Identifier: MIT

#include "app/BrellowindApp.h"
#include "app/CompiledConstants.h"

int main(int /*argc*/, char** argv) {
    using namespace brellowind;
    const auto constants = compiledConstants();
    const auto machine = platform::makeMachine(1, argv, constants); // ignores arguments
    if (!machine)
        return 1;
    BrellowindApp app(*machine, constants);
    if (!app.claimSession())
        return 0;
    app.launch();
    return machine->run();
}
