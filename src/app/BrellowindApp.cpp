// SPDX-License-Identifier: MIT

#include "app/BrellowindApp.h"

#include "app/CompiledConstants.h"

#include <QCoreApplication>
#include <chrono>
#include <utility>

namespace brellowind {
namespace {

std::string settingsPath() {
    return QCoreApplication::applicationDirPath().toStdString() + '/' + settingsLibrary;
}

} // namespace

BrellowindApp::BrellowindApp(platform::Machine& machine, platform::ProductConstants constants)
    : machine_(machine), constants_(std::move(constants)),
      updater_(std::make_shared<UpdateChecker>(machine.http(), machine.log(), machine.links(),
                                               constants_)),
      tasks_(machine.mainLoop()), settings_(settingsPath(), settingsServices()),
      delegate_(machine.windowSystem(), notchContent()) {}

bool BrellowindApp::claimSession() {
    return machine_.claimSession([this] { rootView().openSettings(); });
}

SettingsServices BrellowindApp::settingsServices() {
    return {.mainLoop = machine_.mainLoop(),
            .tasks = tasks_,
            .log = machine_.log(),
            .loginItem = machine_.loginItem(),
            .links = machine_.links(),
            .constants = constants_,
            .router = router_,
            .updater = *updater_};
}

NotchRootView::Environment BrellowindApp::notchContent() {
    auto& mainLoop = machine_.mainLoop();
    auto& windowSystem = machine_.windowSystem();
    return {.mainLoop = mainLoop,
            .tasks = tasks_,
            .router = router_,
            .updater = *updater_,
            .nowPlaying = std::make_shared<NowPlaying>(
                mainLoop, tasks_, std::chrono::system_clock::now, machine_.player()),
            .lyrics = std::make_shared<LyricsStore>(tasks_, machine_.http(), constants_),
            .hover = std::make_shared<HoverMonitor>(windowSystem.pointer(), windowSystem.screens()),
            .artwork = std::make_shared<Artwork>(tasks_, machine_.http(), machine_.files(),
                                                 machine_.images()),
            .window = {},
            .openSettings = [this] {
                machine_.windowSystem().activate();
                settings_.open();
            }};
}

} // namespace brellowind
