// SPDX-License-Identifier: MIT

#pragma once

#include "platform/HeldFile.h"
#include "settings/SettingsOpener.h"

#include <memory>
#include <string>

namespace brellowind {

/// The settings window. Its library, and Qt Quick with it, is loaded when the window is first
/// opened. The library's file is kept open from the start, so that an upgrade of the installed
/// program does not mix two versions.
class SettingsLibrary {
public:
    /// All objects in `services` must outlive this object.
    SettingsLibrary(const std::string& path, const SettingsServices& services);
    SettingsLibrary(const SettingsLibrary&) = delete;
    SettingsLibrary& operator=(const SettingsLibrary&) = delete;

    /// Opens the window. Logs an error if the library is missing, broken or replaced.
    void open();

private:
    void load();

    platform::HeldFile file_;
    SettingsServices services_;
    std::unique_ptr<SettingsOpener> window_;
};

} // namespace brellowind
