// SPDX-License-Identifier: MIT

#pragma once

#include <QBasicTimer>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QVariantMap>

/// The player's object on the bus, "/org/mpris/MediaPlayer2".
///
/// Besides the two MPRIS interfaces it has the interface "org.brellowind.DemoPlayer", by which the
/// demo and the tests control it:
/// - `SetTrack(a{sv} metadata)`: plays a track from its beginning
/// - `SetPosition(x microseconds)`, `SetStatus(s status)`: "Playing", "Paused" or "Stopped"
/// - `SetProperties(a{sv} properties)`: overrides the answer to `GetAll`; an empty map ends that
/// - `SetAnswer(s manner)`: answers `GetAll`, and for "error" also commands, with an "error", a
///   "text" or "nothing", or exits ("death"); any other manner is a normal answer
/// - `SetDelay(i milliseconds)`: delays the answers to `GetAll`
/// - `Flood(u signalsPerSecond)`: emits PropertiesChanged at this rate; 0 stops it
/// - `Requests() -> u`: the number of answered calls of the MPRIS interfaces and `GetAll`
/// - `Leave()`: ends the process
class DemoPlayer : public QDBusVirtualObject {
    Q_OBJECT

public:
    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    void setTrack(const QVariantMap& metadata);
    void setPlaying(bool playing);

    /// Restarts the track when it has ended.
    bool loops = false;

private:
    void timerEvent(QTimerEvent* event) override;
    void flood(uint signalsPerSecond);

    QDBusMessage answerProperties(const QDBusMessage& message);
    QDBusMessage answerGetAll(const QDBusMessage& message, const QVariantMap& properties) const;
    QDBusMessage answerPlayer(const QDBusMessage& message);
    QDBusMessage answerControl(const QDBusMessage& message);

    QVariantMap applicationProperties() const;
    QVariantMap playerProperties() const;
    qint64 positionUs() const;
    void setPosition(qint64 microseconds);
    void setStatus(const QString& status);

    QVariantMap metadata_;
    QVariantMap fixedProperties_;
    QString manner_; ///< of answering `GetAll`
    int delayMs_ = 0;
    QString status_ = QStringLiteral("Stopped");
    qint64 startUs_ = 0; ///< the position at the start of `sinceStart_`
    QElapsedTimer sinceStart_;
    QBasicTimer flood_;
    uint signalsPerTimer_ = 0;
    uint requests_ = 0;
};
