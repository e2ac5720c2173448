// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppDelegate.h"
#include "app/SettingsLibrary.h"
#include "platform/Machine.h"
#include "platform/TaskRunner.h"
#include "settings/SettingsRouter.h"
#include "settings/UpdateChecker.h"

#include <memory>

namespace brellowind {

/// The application. Owns everything that is built on the services of a machine.
class BrellowindApp {
public:
    /// `machine` must outlive this object.
    BrellowindApp(platform::Machine& machine, platform::ProductConstants constants);
    BrellowindApp(const BrellowindApp&) = delete;
    BrellowindApp& operator=(const BrellowindApp&) = delete;

    /// Returns false if an instance is running in this session already: it has been asked to show
    /// its settings window, and this process should exit.
    bool claimSession();

    /// Creates and shows the notch window. Call once.
    void launch() { delegate_.applicationDidFinishLaunching(); }

    NotchRootView& rootView() { return delegate_.rootView(); }
    PillWindow& window() { return delegate_.window(); } ///< only after launch

private:
    SettingsServices settingsServices();
    NotchRootView::Environment notchContent();

    // Members are destroyed in reverse order: suspended tasks before what they refer to.
    platform::Machine& machine_;
    const platform::ProductConstants constants_;
    SettingsRouter router_;
    std::shared_ptr<UpdateChecker> updater_;
    TaskRunner tasks_;
    SettingsLibrary settings_;
    AppDelegate delegate_;
};

} // namespace brellowind
