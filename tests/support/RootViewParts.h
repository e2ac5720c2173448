// SPDX-License-Identifier: MIT

#pragma once

#include "support/SettingsParts.h"
#include "views/NotchRootView.h"

#include <functional>
#include <memory>
#include <utility>

namespace brellowind::test {

/// The parts of a root view, on a fake machine.
struct RootViewParts : SettingsParts {
    using SettingsParts::SettingsParts;

    std::shared_ptr<NotchRootView> make(
        WindowInteractivity::WindowFinder window = [] { return nullptr; },
        std::function<void()> openSettings = [] {}) {
        auto& m = machine;
        return std::make_shared<NotchRootView>(NotchRootView::Environment{
            .mainLoop = m.mainLoop,
            .tasks = m.tasks,
            .router = router,
            .updater = *updater,
            .nowPlaying = std::make_shared<NowPlaying>(
                m.mainLoop, m.tasks, [&m] { return m.clock.now(); }, m.player),
            .lyrics = std::make_shared<LyricsStore>(m.tasks, m.http, m.constants),
            .hover = std::make_shared<HoverMonitor>(m.pointer, m.screens),
            .artwork =
                std::make_shared<Artwork>(m.tasks, m.http, m.files, decoder ? *decoder : m.images),
            .window = std::move(window),
            .openSettings = std::move(openSettings)});
    }

    platform::ImageDecoder* decoder = nullptr; ///< instead of the machine's
};

} // namespace brellowind::test
