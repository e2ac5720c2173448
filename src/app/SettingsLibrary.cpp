#include "app/SettingsLibrary.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

namespace brellowind {

SettingsLibrary::SettingsLibrary(const std::string& path, const SettingsServices& services)
    : path_(path), file_(::open(path.c_str(), O_RDONLY | O_CLOEXEC)), services_(services) {}

SettingsLibrary::~SettingsLibrary() {
    if (file_ >= 0)
        ::close(file_);
}

void SettingsLibrary::open() {
    if (!window_)
        load();
    if (window_)
        window_->open();
}

/// The library is never unloaded: Qt keeps pointers into a library that registered types.
void SettingsLibrary::load() {
    const std::string held = "/proc/self/fd/" + std::to_string(file_);
    void* library = dlopen(file_ < 0 ? path_.c_str() : held.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* make = library ? dlsym(library, makeSettingsOpenerName) : nullptr;
    if (make)
        window_.reset(reinterpret_cast<MakeSettingsOpener*>(make)(services_));
    else
        services_.log.write(std::string("brellowind: the settings cannot be opened: ") + dlerror());
}

} // namespace brellowind
