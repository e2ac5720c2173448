#include "settings/window/GeneralModel.h"

#include "settings/window/Text.h"

#include <utility>

namespace brellowind {

GeneralModel::GeneralModel(const SettingsServices& services)
    : updater_(services.updater), settings_(services),
      launchAtLogin_(settings_.launchAtLogin.get()), card_(publishedCard()),
      nextTurn_(services.mainLoop.onNextTurn([this] { refresh(); })) {
    const auto refreshNextTurn = [this] { nextTurn_->request(); };
    subscriptions_.push_back(settings_.launchAtLogin.observe(refreshNextTurn));
    subscriptions_.push_back(updater_.state.observe(refreshNextTurn));
}

UpdateCard GeneralModel::publishedCard() const {
    return updateCard(updater_.state.get(), updater_.currentVersion());
}

void GeneralModel::refresh() {
    const bool launchAtLogin = settings_.launchAtLogin.get();
    if (std::exchange(launchAtLogin_, launchAtLogin) != launchAtLogin)
        Q_EMIT launchAtLoginChanged();
    auto card = publishedCard();
    if (card == card_)
        return;
    card_ = std::move(card);
    Q_EMIT cardChanged();
}

QString GeneralModel::cardIcon() const {
    return toQString(card_.icon);
}

GeneralModel::CardColor GeneralModel::cardColor() const {
    switch (card_.color) {
    case UpdateCard::Color::yellow:
        return Yellow;
    case UpdateCard::Color::teal:
        return Teal;
    case UpdateCard::Color::red:
        return Red;
    case UpdateCard::Color::green:
        break;
    }
    return Green;
}

QString GeneralModel::cardTitle() const {
    return toQString(card_.title);
}

QString GeneralModel::cardButton() const {
    return toQString(card_.buttonLabel);
}

QString GeneralModel::cardVersion() const {
    return toQString(card_.versionText);
}

} // namespace brellowind
