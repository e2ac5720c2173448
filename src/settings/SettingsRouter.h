// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Published.h"

namespace brellowind {

/// The tabs of the settings window, in order.
enum class SettingsTab { general, about };

/// The selected tab of the settings window. Set before opening the window, and by the window when
/// the user selects a tab. Main thread only.
class SettingsRouter {
public:
    void setSelectedTab(SettingsTab tab) { selectedTab.set(tab); }

    Published<SettingsTab, SettingsRouter> selectedTab{SettingsTab::general};
};

} // namespace brellowind
