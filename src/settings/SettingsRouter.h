#pragma once

#include "foundation/Published.h"

namespace brellowind {

/// The tabs of the settings window, in the order in which they stand.
enum class SettingsTab { general, about };

/// Says which tab the settings window shows. Whoever opens the window chooses here, and the window
/// writes back what the user picks. Main thread only.
class SettingsRouter {
public:
    void setSelectedTab(SettingsTab tab) { selectedTab.set(tab); }

    Published<SettingsTab, SettingsRouter> selectedTab{SettingsTab::general};
};

} // namespace brellowind
