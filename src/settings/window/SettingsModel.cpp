// SPDX-License-Identifier: MIT

#include "settings/window/SettingsModel.h"

namespace brellowind {

SettingsModel::SettingsModel(const SettingsServices& services)
    : router_(services.router), general_(services), about_(services), tab_(routedTab()),
      nextTurn_(services.mainLoop.onNextTurn([this] { refresh(); })),
      selectedTab_(router_.selectedTab.observe([this] { nextTurn_->request(); })) {}

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
    router_.setSelectedTab(tab == About ? SettingsTab::about : SettingsTab::general);
}

SettingsModel::Tab SettingsModel::routedTab() const {
    return router_.selectedTab.get() == SettingsTab::about ? About : General;
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
