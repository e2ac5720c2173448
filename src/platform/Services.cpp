#include "platform/Services.h"

#include "foundation/FatalError.h"

#include <utility>

namespace brellowind::platform {
namespace {

Services* installed = nullptr;

} // namespace

Services& services() {
    if (!installed)
        fatalError("no platform services are installed");
    return *installed;
}

ServicesScope::ServicesScope(Services services)
    : services_(services), previous_(std::exchange(installed, &services_)) {}

ServicesScope::~ServicesScope() {
    installed = previous_;
}

} // namespace brellowind::platform
