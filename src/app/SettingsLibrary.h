#pragma once

#include "platform/HeldFile.h"
#include "settings/SettingsOpener.h"

#include <memory>
#include <string>

namespace brellowind {

/// The settings window, in a library that is loaded when the window is first opened, and Qt Quick
/// with it: most days nobody opens it. The library's file is held from the beginning, so that an
/// upgrade of the program in between does not pair two versions.
class SettingsLibrary {
public:
    /// What `services` refers to must outlive it.
    SettingsLibrary(const std::string& path, const SettingsServices& services);
    SettingsLibrary(const SettingsLibrary&) = delete;
    SettingsLibrary& operator=(const SettingsLibrary&) = delete;

    /// Opens the window. Where the library is missing, broken or replaced it says so in the log.
    void open();

private:
    void load();

    platform::HeldFile file_;
    SettingsServices services_;
    std::unique_ptr<SettingsOpener> window_;
};

} // namespace brellowind
