// SPDX-License-Identifier: MIT

#include "settings/window/GeneralModel.h"

#include <utility>

namespace brellowind {

GeneralModel::GeneralModel(const SettingsServices& services)
    : acceptsFeedback(!services.constants.feedbackEmail.empty()),
      checksForUpdates(services.updater.hasFeed()), updater_(services.updater), settings_(services),
      launchAtLogin_(settings_.launchAtLogin.get()), card_(publishedCard()),
      nextTurn_(services.mainLoop.onNextTurn([this] { refresh(); })) {
    const auto refreshNextTurn = [this] { nextTurn_->request(); };
    subscriptions_.push_back(settings_.launchAtLogin.observe(refreshNextTurn));
    subscriptions_.push_back(settings_.launchAtLoginError.observe(refreshNextTurn));
    subscriptions_.push_back(updater_.state.observe(refreshNextTurn));
}

UpdateCard GeneralModel::publishedCard() const {
    return updateCard(updater_.state.get(), updater_.currentVersion());
}

void GeneralModel::refresh() {
    const bool launchAtLogin = settings_.launchAtLogin.get();
    const std::string& error = settings_.launchAtLoginError.get();
    if (std::exchange(launchAtLoginError_, error) != error)
        Q_EMIT launchAtLoginErrorChanged();
    if (std::exchange(launchAtLogin_, launchAtLogin) != launchAtLogin)
        Q_EMIT launchAtLoginChanged();
    auto card = publishedCard();
    if (card == card_)
        return;
    card_ = std::move(card);
    Q_EMIT cardChanged();
}

} // namespace brellowind
