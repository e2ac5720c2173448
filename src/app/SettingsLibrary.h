#pragma once

#include "settings/SettingsOpener.h"

#include <memory>
#include <string>

namespace brellowind {

/// The settings window, in a library that is loaded when the window is first opened, and Qt Quick
/// with it: most days nobody opens it. An upgrade of the program in between changes nothing, since
/// the library's file is held open from the beginning.
class SettingsLibrary {
public:
    /// What `services` refers to must outlive it.
    SettingsLibrary(const std::string& path, const SettingsServices& services);
    SettingsLibrary(const SettingsLibrary&) = delete;
    SettingsLibrary& operator=(const SettingsLibrary&) = delete;
    ~SettingsLibrary();

    /// Opens the window. Where the library is missing or broken it says so in the log.
    void open();

private:
    void load();

    std::string path_;
    int file_; ///< below 0: it cannot be opened
    SettingsServices services_;
    std::unique_ptr<SettingsOpener> window_;
};

} // namespace brellowind
