// SPDX-License-Identifier: MIT

#pragma once

#include "companion/Companion.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcessEnvironment>
#include <QVariantList>
#include <QVariantMap>
#include <chrono>
#include <memory>

namespace brellowind::test {

/// A player in a separate process, controlled by the test.
class PlayerProcess {
public:
    /// Waits until it owns the bus name; fails the test otherwise. The connection name of `bus` is
    /// its address.
    explicit PlayerProcess(QDBusConnection bus, const QString& name = QStringLiteral("spotify"));

    /// `environment` is that for using `bus`.
    PlayerProcess(QDBusConnection bus, const QProcessEnvironment& environment,
                  const QString& name = QStringLiteral("spotify"));

    /// The metadata that the Spotify application sends for a track.
    static QVariantMap metadata(const QString& title, const QString& artist, const QString& album,
                                qint64 lengthMs);

    void setTrack(const QVariantMap& metadata) { call("SetTrack", {metadata}); }
    void setPosition(double seconds) {
        call("SetPosition", {static_cast<qlonglong>(seconds * 1e6)});
    }
    void setStatus(const char* status) { call("SetStatus", {QString::fromLatin1(status)}); }
    void setProperties(const QVariantMap& properties) { call("SetProperties", {properties}); }
    void setAnswer(const char* manner) { call("SetAnswer", {QString::fromLatin1(manner)}); }
    void setDelay(std::chrono::milliseconds delay) {
        call("SetDelay", {static_cast<int>(delay.count())});
    }
    void flood(uint signalsPerSecond) { call("Flood", {signalsPerSecond}); }
    unsigned requests() { return call("Requests", {}).arguments().value(0).toUInt(); }

    /// The playback status, "Playing" or "Paused", set here or by commands.
    QString status();

    /// Quits the player.
    void quit();

    /// Suspends the process (SIGSTOP), and resumes it.
    void hang();
    void recover();

    /// Kills the process, also a suspended one. The bus passes its name to the next in the queue.
    void kill();

private:
    QDBusMessage call(const char* method, const QVariantList& arguments);

    QDBusConnection bus_;
    QString name_;
    std::unique_ptr<demo::Companion> process_;
};

} // namespace brellowind::test
