// SPDX-License-Identifier: MIT

#include "app/SettingsLibrary.h"

#include <dlfcn.h>

namespace brellowind {

SettingsLibrary::SettingsLibrary(const std::string& path, const SettingsServices& services)
    : file_(path), services_(services) {}

void SettingsLibrary::open() {
    if (!window_)
        load();
    if (window_)
        window_->open();
}

/// The library is never unloaded: Qt keeps pointers into a library that registered types.
void SettingsLibrary::load() {
    const auto path = file_.path();
    void* library = path ? dlopen(path->c_str(), RTLD_NOW | RTLD_LOCAL) : nullptr;
    void* make = library ? dlsym(library, makeSettingsOpenerName) : nullptr;
    if (make)
        window_.reset(reinterpret_cast<MakeSettingsOpener*>(make)(services_));
    else
        services_.log.write(std::string("brellowind: the settings cannot be opened: ") +
                            (path ? dlerror() : "the program has been replaced; start it again"));
}

} // namespace brellowind
