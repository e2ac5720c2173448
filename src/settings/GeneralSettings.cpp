// SPDX-License-Identifier: MIT

#include "settings/GeneralSettings.h"

#include "foundation/AbsoluteURL.h"
#include "settings/UpdateCard.h"

namespace brellowind {
namespace {

bool isEnabled(platform::LoginItem& item) {
    return item.status() == platform::LoginItem::Status::enabled;
}

} // namespace

GeneralSettings::GeneralSettings(const SettingsServices& services)
    : launchAtLogin(isEnabled(services.loginItem)), launchAtLoginError({}), services_(services) {}

void GeneralSettings::appear() {
    check_ = startCheck();
}

TaskHandle GeneralSettings::startCheck() {
    return services_.tasks.start(services_.updater.check());
}

void GeneralSettings::disappear() {
    if (check_)
        check_->cancel();
    check_.reset();
}

void GeneralSettings::setLaunchAtLogin(bool enabled) {
    const bool changes = enabled != launchAtLogin.get();
    launchAtLogin.set(enabled);
    launchAtLoginError.set({});
    if (!changes)
        return;
    auto& item = services_.loginItem;
    if (const auto error = enabled ? item.registerItem() : item.unregisterItem()) {
        services_.log.write("Launch-at-login error: " + *error);
        setLaunchAtLogin(isEnabled(item));
        launchAtLoginError.set(*error);
    }
}

void GeneralSettings::sendFeedback() const {
    const auto url =
        "mailto:" + services_.constants.feedbackEmail + "?subject=Brellowind%20Feedback";
    if (isAbsoluteURL(url))
        services_.links.open(url);
}

void GeneralSettings::pressUpdateButton() {
    auto& updater = services_.updater;
    switch (updateCard(updater.state.get(), updater.currentVersion()).buttonAction) {
    case UpdateCard::Action::openDownload:
        updater.openDownload();
        break;
    case UpdateCard::Action::check:
        startCheck();
        break;
    case UpdateCard::Action::none:
        break;
    }
}

void GeneralSettings::quit() {
    services_.mainLoop.quit();
}

} // namespace brellowind
