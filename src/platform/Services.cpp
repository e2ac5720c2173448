#include "platform/Services.h"

#include "foundation/FatalError.h"

#include <utility>

namespace brellowind::platform {
namespace {

ServicesScope* installed = nullptr;

} // namespace

ServicesScope& ServicesScope::innermost() {
    if (!installed)
        fatalError("no platform services are installed");
    return *installed;
}

Services& services() {
    return ServicesScope::innermost().services_;
}

std::shared_ptr<void>& sharedSlot(std::type_index type) {
    return ServicesScope::innermost().shared_[type];
}

ServicesScope::ServicesScope(Services services)
    : services_(services), previous_(std::exchange(installed, this)) {}

ServicesScope::~ServicesScope() {
    shared_.clear();
    installed = previous_;
}

} // namespace brellowind::platform
