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

/// A player in a process of its own that plays what the test says.
class PlayerProcess {
public:
    /// Owns the bus name once this returns; fails the running test when it does not come.
    /// `bus` has its address as its name.
    explicit PlayerProcess(QDBusConnection bus, const QString& name = QStringLiteral("spotify"));

    /// `environment` leads to `bus`.
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

    /// What the player is told to be, or has been made to be: "Playing" or "Paused".
    QString status();

    /// Ends the player as its user would.
    void quit();

    /// Stops the process so that it answers nothing, and lets it go on.
    void hang();
    void recover();

    /// Ends the process without a word, even a stopped one. The bus gives its name on to whoever
    /// waits for it.
    void kill();

private:
    QDBusMessage call(const char* method, const QVariantList& arguments);

    QDBusConnection bus_;
    QString name_;
    std::unique_ptr<demo::Companion> process_;
};

} // namespace brellowind::test
