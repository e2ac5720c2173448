#pragma once

#include "support/TestMachine.h"
#include "views/NotchRootView.h"

#include <functional>
#include <memory>
#include <utility>

namespace brellowind::test {

/// What a root view is made of, on a machine of the test's own.
struct RootViewParts {
    explicit RootViewParts(TestMachine& machine_) : machine(machine_) {}

    std::shared_ptr<NotchRootView> make(
        WindowInteractivity::WindowFinder window = [] { return nullptr; },
        std::function<void()> openSettings = [] {}) {
        auto& [mainLoop, tasks, clock, log, http, images, files, player, screens, pointer,
               application, links, loginItem, constants] = machine;
        return NotchRootView::create(
            {.mainLoop = mainLoop,
             .tasks = tasks,
             .application = application,
             .router = router,
             .updater = *updater,
             .nowPlaying = NowPlaying::create(mainLoop, tasks, clock, player),
             .lyrics = LyricsStore::create(tasks, http, constants),
             .hover = HoverMonitor::create(pointer, screens),
             .artwork = Artwork::create(tasks, http, files, decoder ? *decoder : images),
             .window = std::move(window),
             .openSettings = std::move(openSettings)});
    }

    TestMachine& machine;
    platform::ImageDecoder* decoder = nullptr; ///< in place of the machine's
    SettingsRouter router;
    std::shared_ptr<UpdateChecker> updater =
        UpdateChecker::create(machine.http, machine.log, machine.links, machine.constants);
};

} // namespace brellowind::test
