#pragma once

#include <QBasicTimer>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QVariantMap>

/// The player's object on the bus, "/org/mpris/MediaPlayer2".
///
/// Beside the two MPRIS interfaces it has one of its own, "org.brellowind.DemoPlayer", through
/// which the demo and the tests say what it plays:
/// - `SetTrack(a{sv} metadata)`: another track, from its beginning
/// - `SetPosition(x microseconds)`, `SetStatus(s status)`: "Playing", "Paused" or "Stopped"
/// - `SetProperties(a{sv} properties)`: answers `GetAll` with exactly these from now on; with none,
///   tells the truth again
/// - `SetAnswer(s manner)`: answers `GetAll` with an "error", which commands get as well, a "text",
///   "nothing", the end of the process, "death", or else truly
/// - `SetDelay(i milliseconds)`: takes so long to answer for its properties
/// - `Flood(u signalsPerSecond)`: announces changes of its properties so often; 0 ends that
/// - `Requests() -> u`: how many calls of the MPRIS interfaces and `GetAll` it has answered
/// - `Leave()`: ends the process
class DemoPlayer : public QDBusVirtualObject {
    Q_OBJECT

public:
    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    void setTrack(const QVariantMap& metadata);
    void setPlaying(bool playing);

    /// Begins again whenever the track has ended.
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
    qint64 startUs_ = 0; ///< the position when `sinceStart_` began
    QElapsedTimer sinceStart_;
    QBasicTimer flood_;
    uint signalsPerTimer_ = 0;
    uint requests_ = 0;
};
