// SPDX-License-Identifier: MIT

#include "platform/macos/appkit/ServiceLoginItem.h"

#import <ServiceManagement/ServiceManagement.h>

#include "platform/macos/appkit/Text.h"

namespace brellowind::platform {
namespace {

std::string description(NSError* _Nullable error) {
    return error != nil ? plainText(error.description) : "the system does not tell why";
}

} // namespace

LoginItem::Status ServiceLoginItem::status() {
    switch (SMAppService.mainAppService.status) {
    case SMAppServiceStatusNotRegistered:
        return Status::notRegistered;
    case SMAppServiceStatusEnabled:
        return Status::enabled;
    case SMAppServiceStatusRequiresApproval:
        return Status::requiresApproval;
    case SMAppServiceStatusNotFound: // also before the first registration
        return Status::notFound;
    }
    return Status::notFound;
}

std::optional<std::string> ServiceLoginItem::registerItem() {
    if (status() == Status::enabled)
        return std::nullopt; // the system would call it a failure
    NSError* error = nil;
    if ([SMAppService.mainAppService registerAndReturnError:&error])
        return std::nullopt;
    return description(error);
}

std::optional<std::string> ServiceLoginItem::unregisterItem() {
    const Status before = status();
    if (before == Status::notRegistered || before == Status::notFound)
        return std::nullopt; // likewise
    NSError* error = nil;
    if ([SMAppService.mainAppService unregisterAndReturnError:&error])
        return std::nullopt;
    return description(error);
}

} // namespace brellowind::platform
