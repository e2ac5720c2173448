// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Published.h"
#include "platform/TaskRunner.h"
#include "settings/SettingsServices.h"

#include <optional>
#include <string>

namespace brellowind {

/// The General tab of the settings window. Created with the window; reads the login item's status
/// at that time. Main thread only.
class GeneralSettings {
public:
    explicit GeneralSettings(const SettingsServices& services);
    GeneralSettings(const GeneralSettings&) = delete;
    GeneralSettings& operator=(const GeneralSettings&) = delete;

    /// Call when the tab is shown. Starts an update check.
    void appear();

    /// Call when the tab is hidden or closed. Cancels the check that `appear` started.
    void disappear();

    /// Sets the switch. A change registers or unregisters the login item. If that fails, the switch
    /// is set to the item's current status, which is a change like any other.
    void setLaunchAtLogin(bool enabled);

    /// Opens a new mail to the maker. Does nothing if the address gives no valid URL.
    void sendFeedback() const;

    /// Performs the current action of the update card's button.
    void pressUpdateButton();

    void quit();

    Published<bool, GeneralSettings> launchAtLogin; ///< the value of the switch

    /// Why the last change of the switch failed; empty if it did not.
    Published<std::string, GeneralSettings> launchAtLoginError;

private:
    TaskHandle startCheck();

    SettingsServices services_;
    std::optional<TaskHandle> check_; ///< started by the last `appear`
};

} // namespace brellowind
