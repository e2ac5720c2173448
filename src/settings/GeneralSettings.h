#pragma once

#include "foundation/Published.h"
#include "platform/TaskRunner.h"
#include "settings/SettingsServices.h"

#include <optional>

namespace brellowind {

/// The General tab of the settings window. Made each time the window is, it begins with what the
/// login item's status is then. Main thread only.
class GeneralSettings {
public:
    explicit GeneralSettings(const SettingsServices& services);
    GeneralSettings(const GeneralSettings&) = delete;
    GeneralSettings& operator=(const GeneralSettings&) = delete;

    /// The tab is shown: each time, an update check starts.
    void appear();

    /// The tab is hidden or closed: the check that its appearance started is cancelled.
    void disappear();

    /// Turns the switch. A change of its value registers or unregisters the login item. When that
    /// fails, the switch turns to what the item's status is then; that is a change like any other.
    void setLaunchAtLogin(bool enabled);

    /// Opens a message to the maker, unless the address makes no valid URL.
    void sendFeedback() const;

    /// Does what the update card's button says at this moment.
    void pressUpdateButton();

    void quit();

    Published<bool, GeneralSettings> launchAtLogin; ///< the value of the switch

private:
    TaskHandle startCheck();

    SettingsServices services_;
    std::optional<TaskHandle> check_; ///< the one that the last appearance started
};

} // namespace brellowind
