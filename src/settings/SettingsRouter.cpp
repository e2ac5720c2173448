#include "settings/SettingsRouter.h"

#include "platform/SharedInstance.h"

namespace brellowind {

SettingsRouter& SettingsRouter::shared() {
    return platform::sharedInstance<SettingsRouter>(
        [] { return std::shared_ptr<SettingsRouter>(new SettingsRouter); });
}

} // namespace brellowind
