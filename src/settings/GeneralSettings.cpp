#include "settings/GeneralSettings.h"

#include "foundation/AbsoluteURL.h"
#include "platform/Services.h"
#include "settings/AppInfo.h"
#include "settings/UpdateCard.h"
#include "settings/UpdateChecker.h"

namespace brellowind {
namespace {

using platform::services;

constexpr std::string_view feedbackSubject = "Brellowind%20Feedback"; // escaped for a query

bool isLoginItemEnabled() {
    return services().loginItem.status() == platform::LoginItem::Status::enabled;
}

TaskHandle startCheck() {
    return services().tasks.start(UpdateChecker::shared().check());
}

} // namespace

GeneralSettings::GeneralSettings() : launchAtLogin(isLoginItemEnabled()) {}

void GeneralSettings::appear() {
    check_ = startCheck();
}

void GeneralSettings::disappear() {
    if (check_)
        check_->cancel();
    check_.reset();
}

void GeneralSettings::setLaunchAtLogin(bool enabled) {
    const bool changes = enabled != launchAtLogin.get();
    launchAtLogin.set(enabled);
    if (!changes)
        return;
    auto& item = services().loginItem;
    if (const auto error = enabled ? item.registerItem() : item.unregisterItem()) {
        services().log.write("Launch-at-login error: " + *error);
        setLaunchAtLogin(isLoginItemEnabled());
    }
}

void GeneralSettings::sendFeedback() const {
    if (const auto url = feedbackURL(AppInfo::feedbackEmail()))
        services().links.open(*url);
}

void GeneralSettings::pressUpdateButton() {
    auto& updater = UpdateChecker::shared();
    switch (updateCard(updater.state.get(), UpdateChecker::currentVersion()).buttonAction) {
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
    services().application.terminate();
}

std::optional<std::string> feedbackURL(std::string_view email) {
    std::string url = "mailto:";
    url += email;
    url += "?subject=";
    url += feedbackSubject;
    if (!isAbsoluteURL(url))
        return std::nullopt;
    return url;
}

} // namespace brellowind
