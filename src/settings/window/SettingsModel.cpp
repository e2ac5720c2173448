#include "settings/window/SettingsModel.h"

#include "platform/Services.h"

namespace brellowind {
namespace {

SettingsModel::Tab routedTab() {
    const bool about = SettingsRouter::shared().selectedTab.get() == SettingsTab::about;
    return about ? SettingsModel::About : SettingsModel::General;
}

} // namespace

SettingsModel::SettingsModel()
    : tab_(routedTab()), nextTurn_(platform::services().mainLoop.onNextTurn([this] { refresh(); })),
      selectedTab_(SettingsRouter::shared().selectedTab.observe([this] { nextTurn_->request(); })) {
}

SettingsModel::~SettingsModel() {
    setShown(false);
}

void SettingsModel::setShown(bool shown) {
    shown_ = shown;
    updateAppearance();
}

void SettingsModel::refresh() {
    if (const Tab routed = routedTab(); routed != tab_) {
        tab_ = routed;
        Q_EMIT tabChanged();
    }
    updateAppearance();
}

void SettingsModel::selectTab(Tab tab) {
    SettingsRouter::shared().setSelectedTab(tab == About ? SettingsTab::about
                                                         : SettingsTab::general);
}

void SettingsModel::updateAppearance() {
    const bool appears = shown_ && tab_ == General;
    if (appears == generalAppears_)
        return;
    generalAppears_ = appears;
    if (appears)
        general_.appear();
    else
        general_.disappear();
}

} // namespace brellowind
