#include "settings/window/AboutModel.h"

#include "settings/AppInfo.h"
#include "settings/window/Text.h"

namespace brellowind {

AboutModel::AboutModel(const SettingsServices& services)
    : constants_(services.constants), links_(services.links) {}

QString AboutModel::name() const {
    return toQString(AppInfo::name);
}

QString AboutModel::version() const {
    return toQString(AppInfo::version(constants_.version));
}

QString AboutModel::description() const {
    return toQString(AppInfo::description);
}

QString AboutModel::legalNotice() const {
    return toQString(constants_.legalNotice);
}

void AboutModel::openWebsite() const {
    links_.open(constants_.websiteURL);
}

void AboutModel::openSocialProfile() const {
    links_.open(constants_.socialURL);
}

void AboutModel::openPrivacyPolicy() const {
    links_.open(constants_.privacyPolicyURL);
}

void AboutModel::openTerms() const {
    links_.open(constants_.termsURL);
}

} // namespace brellowind
