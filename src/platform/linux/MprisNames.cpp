// SPDX-License-Identifier: MIT

#include "platform/linux/MprisNames.h"

#include <string_view>

namespace brellowind::platform {
namespace {

const auto namePrefix = QStringLiteral("org.mpris.MediaPlayer2.");
const auto busService = QStringLiteral("org.freedesktop.DBus");
constexpr std::string_view instanceMark = ".instance";

} // namespace

MprisNames::MprisNames(QDBusConnection bus, std::vector<std::string> players, Changed changed,
                       std::function<void()> listed)
    : players_(std::move(players)), changed_(std::move(changed)) {
    // Before listing, so that no change is missed in between.
    watcher_.setConnection(bus);
    watcher_.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    for (const auto& player : players_)
        watcher_.addWatchedService(namePrefix + QString::fromStdString(player) + u'*');
    QObject::connect(&watcher_, &QDBusServiceWatcher::serviceOwnerChanged, &watcher_,
                     [this](const QString& busName, const QString&, const QString& owner) {
                         if (const auto name = nameOf(busName))
                             changed_(*name, !owner.isEmpty());
                     });
    listing_.emplace(
        bus,
        methodCall(busService, QStringLiteral("/org/freedesktop/DBus"), busService, "ListNames"),
        BusCall::noTimeout, [this, listed = std::move(listed)](const QDBusMessage& reply) {
            for (const auto& busName : reply.arguments().value(0).toStringList())
                if (const auto name = nameOf(busName))
                    changed_(*name, true);
            listed();
        });
}

std::optional<MprisNames::Name> MprisNames::nameOf(const QString& busName) const {
    if (!busName.startsWith(namePrefix))
        return std::nullopt;
    const std::string name = busName.sliced(namePrefix.size()).toStdString();
    for (std::size_t i = 0; i < players_.size(); ++i) {
        const std::string& player = players_[i];
        if (name == player)
            return Name(i, busName);
        if (name.starts_with(player) &&
            std::string_view(name).substr(player.size()).starts_with(instanceMark))
            return Name(players_.size(), busName);
    }
    return std::nullopt;
}

} // namespace brellowind::platform
