// SPDX-License-Identifier: MIT

#pragma once

#include "platform/FailureLog.h"
#include "platform/MainLoop.h"
#include "platform/Player.h"
#include "platform/linux/BusCall.h"
#include "platform/linux/PlayerChoice.h"

#include <QDBusConnection>
#include <QElapsedTimer>
#include <QString>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace brellowind::platform {

/// One player on the bus, with its open request or its last answer. Logs late answers, errors and
/// answers of a wrong type.
class MprisProxy {
public:
    /// A slower player is late. Its answer counts nevertheless.
    static constexpr std::chrono::milliseconds patience{2000};

    /// Calls `changed` when the player has answered and when it is late, never from within `ask`.
    MprisProxy(QDBusConnection bus, QString name, MainLoop& mainLoop, Log& log,
               std::function<void()> changed);

    bool wasAsked() const { return question_.has_value() || state_ != State::asked; }
    bool isLate() const { return state_ == State::late; }

    /// Requests a reading. Does nothing while a request is open.
    void ask();

    PlayerCandidate candidate() const { return {state_, playedBefore_}; }

    /// The last reading, with the position advanced to now. REQUIRES: it plays or is paused.
    Player::Snapshot snapshot() const;

    QDBusMessage playPauseCall() const;

private:
    using State = PlayerCandidate::State;

    void handleReply(const QDBusMessage& reply);
    State read(const QDBusMessage& reply);

    QDBusConnection bus_;
    QString name_;
    MainLoop& mainLoop_;
    FailureLog failures_;
    std::function<void()> changed_;

    std::optional<BusCall> question_;
    std::unique_ptr<Timer> lateness_;
    State state_ = State::asked;
    bool playedBefore_ = false;
    std::optional<Player::Snapshot> snapshot_;
    QElapsedTimer sinceAnswer_;
};

} // namespace brellowind::platform
