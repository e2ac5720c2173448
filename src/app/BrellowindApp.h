#pragma once

#include "app/AppDelegate.h"
#include "app/SettingsLibrary.h"
#include "platform/Machine.h"
#include "platform/TaskRunner.h"
#include "settings/SettingsRouter.h"
#include "settings/UpdateChecker.h"

#include <memory>

namespace brellowind {

/// The application: everything that is built on the services of a machine.
class BrellowindApp {
public:
    /// `machine` must outlive it.
    BrellowindApp(platform::Machine& machine, platform::ProductConstants constants);
    BrellowindApp(const BrellowindApp&) = delete;
    BrellowindApp& operator=(const BrellowindApp&) = delete;

    /// False when this program runs already in this session: that one has been asked to show its
    /// settings window, and this one should end.
    bool claimSession();

    /// Creates the notch window and shows it. Called once.
    void launch() { delegate_.applicationDidFinishLaunching(); }

    NotchRootView& rootView() { return delegate_.rootView(); }
    NotchView& window() { return delegate_.window(); } ///< there once launched

private:
    SettingsServices settingsServices();
    NotchRootView::Environment notchContent();

    // Destroyed from the bottom up: suspended tasks go before what they refer to.
    platform::Machine& machine_;
    const platform::ProductConstants constants_;
    SettingsRouter router_;
    std::shared_ptr<UpdateChecker> updater_;
    TaskRunner tasks_;
    SettingsLibrary settings_;
    AppDelegate delegate_;
};

} // namespace brellowind
