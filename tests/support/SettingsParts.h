#pragma once

#include "settings/SettingsServices.h"
#include "support/TestMachine.h"

#include <memory>

namespace brellowind::test {

/// What the settings are shown from, on a machine of the test's own.
struct SettingsParts {
    explicit SettingsParts(TestMachine& machine_) : machine(machine_) {}

    SettingsServices services() {
        return {.mainLoop = machine.mainLoop,
                .tasks = machine.tasks,
                .log = machine.log,
                .loginItem = machine.loginItem,
                .links = machine.links,
                .application = machine.application,
                .constants = machine.constants,
                .router = router,
                .updater = *updater};
    }

    TestMachine& machine;
    SettingsRouter router;
    std::shared_ptr<UpdateChecker> updater = std::make_shared<UpdateChecker>(
        machine.http, machine.log, machine.links, machine.constants);
};

} // namespace brellowind::test
