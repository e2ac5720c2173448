#include "settings/AppInfo.h"

#include "platform/Services.h"

namespace brellowind::AppInfo {

using platform::services;

const std::string& websiteURL() {
    return services().constants.websiteURL;
}

const std::string& socialURL() {
    return services().constants.socialURL;
}

const std::string& privacyPolicyURL() {
    return services().constants.privacyPolicyURL;
}

const std::string& termsURL() {
    return services().constants.termsURL;
}

const std::string& feedbackEmail() {
    return services().constants.feedbackEmail;
}

const std::string& updateFeedURL() {
    return services().constants.updateFeedURL;
}

const std::string& legalNotice() {
    return services().constants.legalNotice;
}

std::string version() {
    const auto& shortVersion = services().constants.version;
    return "Version " + (shortVersion.empty() ? "—" : shortVersion);
}

} // namespace brellowind::AppInfo
