// SPDX-License-Identifier: MIT

#pragma once

#include "settings/SettingsServices.h"

namespace brellowind {

/// The interface of the settings library.
class SettingsOpener {
public:
    SettingsOpener() = default;
    SettingsOpener(const SettingsOpener&) = delete;
    SettingsOpener& operator=(const SettingsOpener&) = delete;
    virtual ~SettingsOpener() = default;

    /// Shows the window with the router's tab, or raises it.
    virtual void open() = 0;
};

/// The factory function in the library, and its symbol. The caller owns the result. All objects in
/// `services` must outlive it.
using MakeSettingsOpener = SettingsOpener*(const SettingsServices& services);
inline constexpr auto makeSettingsOpenerName = "brellowindMakeSettingsOpener";

} // namespace brellowind
