// SPDX-License-Identifier: MIT

#pragma once

#include "session/PlayerProcess.h"
#include "support/Chance.h"

#include <QDeadlineTimer>
#include <optional>

namespace brellowind::test {

/// A player that changes tracks, seeks, pauses, hangs, crashes and restarts at random.
class RestlessPlayer {
public:
    /// Its covers come from the service at `origin`.
    RestlessPlayer(QDBusConnection bus, QString origin, Chance& chance);

    /// Performs a random action.
    void act();

    /// Restores a running, responding player with a playing or paused track.
    void settle(const QString& title, const char* status, double seconds);

    int tracks = 0;
    int seeks = 0;
    int pauses = 0; ///< and resumptions
    int crashes = 0;
    int hangs = 0;

private:
    void start();
    void recover();
    void playSong(const QString& title);

    QDBusConnection bus_;
    QString origin_;
    Chance& chance_;
    std::optional<PlayerProcess> process_;
    std::optional<QDeadlineTimer> hangsUntil_;
};

} // namespace brellowind::test
