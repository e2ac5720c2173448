// SPDX-License-Identifier: MIT

#pragma once

#include "settings/SettingsServices.h"
#include "support/TestMachine.h"

#include <memory>

namespace brellowind::test {

/// The parts of the settings, on a fake machine.
struct SettingsParts {
    explicit SettingsParts(TestMachine& machine_) : machine(machine_) {}

    SettingsServices services() {
        return {.mainLoop = machine.mainLoop,
                .tasks = machine.tasks,
                .log = machine.log,
                .loginItem = machine.loginItem,
                .links = machine.links,
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
