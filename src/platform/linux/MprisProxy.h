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

/// One player on the bus, with its open question or its last answer. It writes to the system log
/// when the player is late and when it answers with an error or with something of a wrong type.
class MprisProxy {
public:
    /// A player that takes longer is late. Its answer counts whenever it comes.
    static constexpr std::chrono::milliseconds patience{2000};

    /// `changed` is called when the player has answered, and when it is late. Not called by `ask`.
    MprisProxy(QDBusConnection bus, QString name, MainLoop& mainLoop, Log& log,
               std::function<void()> changed);

    bool wasAsked() const { return question_.has_value() || state_ != State::asked; }
    bool isLate() const { return state_ == State::late; }

    /// Asks for a reading, unless that question is open.
    void ask();

    PlayerCandidate candidate() const { return {state_, playedBefore_}; }

    /// The last reading, with the position of this moment. Only if it plays or is paused.
    Player::Snapshot snapshot() const;

    QDBusMessage playPauseCall() const;

private:
    using State = PlayerCandidate::State;

    void takeAnswer(const QDBusMessage& reply);
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
