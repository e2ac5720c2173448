#pragma once

#include "platform/Services.h"

#include <memory>
#include <typeindex>

namespace brellowind::platform {

/// The one instance of `T` under the installed services: `make` returns it, as a `shared_ptr<T>`,
/// on first use, and it goes with the services. A program installs its services once, so for it
/// this is the one instance of the process; each test that installs a machine gets a fresh one.
template <typename T, typename Make>
T& sharedInstance(Make make) {
    auto& slot = sharedSlot(typeid(T));
    if (!slot) {
        std::shared_ptr<T> made = make();
        slot = std::move(made);
    }
    return *static_cast<T*>(slot.get());
}

} // namespace brellowind::platform
