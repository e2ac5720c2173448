#pragma once

#include "settings/SettingsServices.h"

namespace brellowind {

/// What can be asked of the settings window from outside the library that it lives in.
class SettingsOpener {
public:
    SettingsOpener() = default;
    SettingsOpener(const SettingsOpener&) = delete;
    SettingsOpener& operator=(const SettingsOpener&) = delete;
    virtual ~SettingsOpener() = default;

    /// Shows the window on the router's tab and brings it to the front, also when it is open.
    virtual void open() = 0;
};

/// The function of the library that makes one, owned by the caller, and its name there. What the
/// services refer to must outlive it.
using MakeSettingsOpener = SettingsOpener*(const SettingsServices& services);
inline constexpr auto makeSettingsOpenerName = "brellowindMakeSettingsOpener";

} // namespace brellowind
