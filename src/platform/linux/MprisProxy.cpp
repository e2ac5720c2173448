// SPDX-License-Identifier: MIT

#include "platform/linux/MprisProxy.h"

#include "platform/linux/MprisReading.h"

#include <algorithm>
#include <utility>

namespace brellowind::platform {
namespace {

const auto objectPath = QStringLiteral("/org/mpris/MediaPlayer2");
const auto playerInterface = QStringLiteral("org.mpris.MediaPlayer2.Player");

/// Whether an error means that the player has quit. As the calls have no timeout, "NoReply" means
/// that it has disconnected.
bool saysThatNobodyIsThere(const QDBusMessage& error) {
    static constexpr const char* names[] = {
        "org.freedesktop.DBus.Error.NameHasNoOwner", "org.freedesktop.DBus.Error.ServiceUnknown",
        "org.freedesktop.DBus.Error.NoReply", "org.freedesktop.DBus.Error.Disconnected"};
    return std::ranges::any_of(
        names, [&](const char* name) { return error.errorName() == QLatin1String(name); });
}

} // namespace

MprisProxy::MprisProxy(QDBusConnection bus, QString name, MainLoop& mainLoop, Log& log,
                       std::function<void()> changed)
    : bus_(std::move(bus)), name_(std::move(name)), mainLoop_(mainLoop),
      failures_(log, Player::logPrefix), changed_(std::move(changed)) {}

void MprisProxy::ask() {
    if (question_)
        return;
    state_ = State::asked;
    question_.emplace(
        bus_,
        methodCall(name_, objectPath, QStringLiteral("org.freedesktop.DBus.Properties"), "GetAll",
                   {playerInterface}),
        BusCall::noTimeout, [this](const QDBusMessage& reply) { handleReply(reply); });
    lateness_ = mainLoop_.scheduleOnce(patience, [this] {
        state_ = State::late;
        failures_.failed("the player does not answer");
        changed_();
    });
}

Player::Snapshot MprisProxy::snapshot() const {
    auto snapshot = *snapshot_;
    if (snapshot.isPlaying)
        snapshot.positionSec +=
            std::chrono::duration<double>(std::chrono::nanoseconds(sinceAnswer_.nsecsElapsed()))
                .count();
    return snapshot;
}

QDBusMessage MprisProxy::playPauseCall() const {
    return methodCall(name_, objectPath, playerInterface, "PlayPause");
}

void MprisProxy::handleReply(const QDBusMessage& reply) {
    question_.reset();
    lateness_.reset();
    state_ = read(reply);
    changed_();
}

MprisProxy::State MprisProxy::read(const QDBusMessage& reply) {
    if (reply.type() == QDBusMessage::ErrorMessage) {
        if (saysThatNobodyIsThere(reply))
            return State::withoutTrack;
        failures_.failed(errorText(reply));
        return State::unreadable;
    }
    const auto answer = readMpris(reply);
    if (std::holds_alternative<Player::Unreadable>(answer)) {
        failures_.failed("the player's answer is of the wrong type");
        return State::unreadable;
    }
    failures_.succeeded();
    const auto* snapshot = std::get_if<Player::Snapshot>(&answer);
    playedBefore_ = snapshot && snapshot->isPlaying;
    if (!snapshot)
        return State::withoutTrack;
    snapshot_ = *snapshot;
    sinceAnswer_.start();
    return playedBefore_ ? State::playing : State::paused;
}

} // namespace brellowind::platform
