// SPDX-License-Identifier: MIT

#include "platform/linux/MprisPlayer.h"

#include "platform/Operation.h"

#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>
#include <variant>

namespace brellowind::platform {
namespace {

/// Waits for the next notification. Returns false if the task is cancelled first.
Task<bool> nextChange(Observers& changes, MainLoop& mainLoop) {
    using Change = Operation<Subscription, bool>;
    Change change(
        mainLoop,
        [&changes](Change::Finish finish) {
            return std::make_unique<Subscription>(
                changes.add([finish = std::move(finish)] { finish(true); }));
        },
        false);
    co_return co_await change;
}

/// Sends `call` and waits for its reply, which is an error after a timeout. Returns nullopt if the
/// task is cancelled first.
Task<std::optional<QDBusMessage>> replyTo(QDBusConnection bus, QDBusMessage call,
                                          MainLoop& mainLoop) {
    using Reply = Operation<BusCall, std::optional<QDBusMessage>>;
    Reply reply(
        mainLoop,
        [&](Reply::Finish finish) {
            return std::make_unique<BusCall>(
                bus, call, static_cast<int>(MprisProxy::patience.count()),
                [finish = std::move(finish)](const QDBusMessage& message) { finish(message); });
        },
        std::nullopt);
    co_return co_await reply;
}

void logFailure(Log& log, std::string_view description) {
    log.write(std::string(Player::logPrefix).append(description));
}

} // namespace

MprisPlayer::MprisPlayer(QDBusConnection bus, std::vector<std::string> players, MainLoop& mainLoop,
                         Log& log)
    : bus_(std::move(bus)), mainLoop_(mainLoop), log_(log), busFailures_(log, logPrefix) {
    if (hasBus())
        names_.emplace(
            bus_, std::move(players),
            [this](const MprisNames::Name& name, bool isOwned) { changeOwner(name, isOwned); },
            [this] {
                isListed_ = true;
                changes_->notify();
            });
}

Task<Player::Answer> MprisPlayer::read() {
    // The states of other players may change while waiting for a late one.
    const auto repetition = mainLoop_.scheduleRepeating(
        MprisProxy::patience, [this, changes = std::weak_ptr(changes_)] {
            if (!changes.expired()) // then this object exists
                ask();
        });
    ask();
    for (;;) {
        if (const auto known = answer())
            co_return *known;
        if (!co_await nextChange(*changes_, mainLoop_))
            co_return NotRunning();
    }
}

Task<void> MprisPlayer::playPause() {
    while (hasBus() && !isListed_)
        if (!co_await nextChange(*changes_, mainLoop_))
            co_return;
    const auto player = playerToControl();
    auto& log = log_; // this object may be destroyed while the task is suspended
    if (player == proxies_.end()) {
        logFailure(log, "the player is not running");
    } else if (player->second.isLate()) {
        logFailure(log, "the player does not answer"); // and would execute the command late
    } else {
        const auto reply = co_await replyTo(bus_, player->second.playPauseCall(), mainLoop_);
        if (reply && reply->type() == QDBusMessage::ErrorMessage)
            logFailure(log, errorText(*reply));
    }
}

bool MprisPlayer::hasBus() {
    if (bus_.isConnected())
        return true;
    busFailures_.failed("there is no session bus");
    return false;
}

/// Discards the state of the previous owner.
void MprisPlayer::changeOwner(const MprisNames::Name& name, bool isOwned) {
    proxies_.erase(name);
    if (isOwned)
        proxies_.try_emplace(name, bus_, name.second, mainLoop_, log_,
                             [this] { changes_->notify(); });
    changes_->notify();
}

/// Asks each player without an open request.
void MprisPlayer::ask() {
    for (auto& [name, proxy] : proxies_)
        proxy.ask();
}

/// The answer of the current reading. Returns nullopt if it must wait.
std::optional<Player::Answer> MprisPlayer::answer() {
    if (!hasBus())
        return NotRunning();
    if (!isListed_)
        return std::nullopt;
    std::vector<PlayerCandidate> candidates;
    for (auto& [name, proxy] : proxies_) {
        if (!proxy.wasAsked()) // appeared after the reading began
            proxy.ask();
        candidates.push_back(proxy.candidate());
    }
    const auto choice = choosePlayer(candidates);
    if (!choice)
        return std::nullopt;
    if (const auto* index = std::get_if<std::size_t>(&*choice)) {
        const auto& [name, proxy] =
            *std::next(proxies_.begin(), static_cast<std::ptrdiff_t>(*index));
        shown_ = name;
        return proxy.snapshot();
    }
    if (std::holds_alternative<Unreadable>(*choice))
        return Unreadable();
    return NotRunning();
}

MprisPlayer::Proxies::const_iterator MprisPlayer::playerToControl() const {
    const auto shown = shown_ ? proxies_.find(*shown_) : proxies_.end();
    return shown != proxies_.end() ? shown : proxies_.begin();
}

} // namespace brellowind::platform
