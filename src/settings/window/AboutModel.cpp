#include "settings/window/AboutModel.h"

#include "platform/Services.h"
#include "settings/AppInfo.h"
#include "settings/window/Text.h"

namespace brellowind {
namespace {

void openLink(const std::string& url) {
    platform::services().links.open(url);
}

} // namespace

QString AboutModel::name() const {
    return toQString(AppInfo::name);
}

QString AboutModel::version() const {
    return toQString(AppInfo::version());
}

QString AboutModel::description() const {
    return toQString(AppInfo::description);
}

QString AboutModel::legalNotice() const {
    return toQString(AppInfo::legalNotice());
}

void AboutModel::openWebsite() const {
    openLink(AppInfo::websiteURL());
}

void AboutModel::openSocialProfile() const {
    openLink(AppInfo::socialURL());
}

void AboutModel::openPrivacyPolicy() const {
    openLink(AppInfo::privacyPolicyURL());
}

void AboutModel::openTerms() const {
    openLink(AppInfo::termsURL());
}

} // namespace brellowind
