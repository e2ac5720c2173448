// SPDX-License-Identifier: MIT

#include "DemoPlayer.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QTimer>
#include <cstdlib>

namespace {

const auto propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
const auto applicationInterface = QStringLiteral("org.mpris.MediaPlayer2");
const auto playerInterface = QStringLiteral("org.mpris.MediaPlayer2.Player");
const auto controlInterface = QStringLiteral("org.brellowind.DemoPlayer");
const auto playing = QStringLiteral("Playing");
const auto paused = QStringLiteral("Paused");

QDBusMessage unknown(const QDBusMessage& message) {
    return message.createErrorReply(QDBusError::UnknownMethod,
                                    QStringLiteral("no such method: ") + message.member());
}

QDBusMessage failure(const QDBusMessage& message) {
    return message.createErrorReply(QDBusError::Failed, QStringLiteral("as the test says"));
}

QVariantMap mapArgument(const QDBusMessage& message) {
    return qdbus_cast<QVariantMap>(message.arguments().value(0));
}

} // namespace

QString DemoPlayer::introspect(const QString& path) const {
    Q_UNUSED(path)
    return QStringLiteral(R"(
<interface name="org.mpris.MediaPlayer2.Player">
  <method name="PlayPause"/><method name="Play"/><method name="Pause"/><method name="Stop"/>
  <property name="PlaybackStatus" type="s" access="read"/>
  <property name="Metadata" type="a{sv}" access="read"/>
  <property name="Position" type="x" access="read"/>
</interface>)");
}

bool DemoPlayer::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    QDBusMessage reply;
    if (message.interface() == controlInterface) {
        reply = answerControl(message);
    } else if (message.interface() == propertiesInterface) {
        ++requests_;
        if (delayMs_ > 0) {
            QTimer::singleShot(delayMs_, Qt::PreciseTimer, this, [this, message, connection] {
                connection.send(answerProperties(message));
            });
            return true;
        }
        reply = answerProperties(message);
    } else if (message.interface() == playerInterface) {
        ++requests_;
        reply = answerPlayer(message);
    } else {
        return false;
    }
    return connection.send(reply);
}

void DemoPlayer::setTrack(const QVariantMap& metadata) {
    metadata_ = metadata;
    setPosition(0);
}

void DemoPlayer::setPlaying(bool plays) {
    setStatus(plays ? playing : paused);
}

QDBusMessage DemoPlayer::answerProperties(const QDBusMessage& message) {
    const QString interface = message.arguments().value(0).toString();
    if (interface != playerInterface && interface != applicationInterface)
        return unknown(message);
    const QVariantMap properties =
        interface == playerInterface ? playerProperties() : applicationProperties();
    if (message.member() == QStringLiteral("GetAll"))
        return answerGetAll(message, properties);
    const QVariant value = properties.value(message.arguments().value(1).toString());
    if (message.member() == QStringLiteral("Get") && value.isValid())
        return message.createReply(QVariant::fromValue(QDBusVariant(value)));
    return unknown(message);
}

QDBusMessage DemoPlayer::answerGetAll(const QDBusMessage& message,
                                      const QVariantMap& properties) const {
    if (manner_ == QStringLiteral("error"))
        return failure(message);
    if (manner_ == QStringLiteral("text"))
        return message.createReply(QStringLiteral("no properties"));
    if (manner_ == QStringLiteral("nothing"))
        return message.createReply();
    if (manner_ == QStringLiteral("death"))
        std::_Exit(1);
    return message.createReply(QVariant(properties));
}

QDBusMessage DemoPlayer::answerPlayer(const QDBusMessage& message) {
    const QString member = message.member();
    if (manner_ == QStringLiteral("error"))
        return failure(message);
    if (member == QStringLiteral("PlayPause"))
        setPlaying(status_ != playing);
    else if (member == QStringLiteral("Play") || member == QStringLiteral("Pause"))
        setPlaying(member == QStringLiteral("Play"));
    else
        return unknown(message);
    return message.createReply();
}

QDBusMessage DemoPlayer::answerControl(const QDBusMessage& message) {
    const QString member = message.member();
    if (member == QStringLiteral("SetTrack"))
        setTrack(mapArgument(message));
    else if (member == QStringLiteral("SetPosition"))
        setPosition(message.arguments().value(0).toLongLong());
    else if (member == QStringLiteral("SetStatus"))
        setStatus(message.arguments().value(0).toString());
    else if (member == QStringLiteral("SetProperties"))
        fixedProperties_ = mapArgument(message);
    else if (member == QStringLiteral("SetAnswer"))
        manner_ = message.arguments().value(0).toString();
    else if (member == QStringLiteral("SetDelay"))
        delayMs_ = message.arguments().value(0).toInt();
    else if (member == QStringLiteral("Flood"))
        flood(message.arguments().value(0).toUInt());
    else if (member == QStringLiteral("Requests"))
        return message.createReply(requests_);
    else if (member == QStringLiteral("Leave"))
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    else
        return unknown(message);
    return message.createReply();
}

void DemoPlayer::flood(uint signalsPerSecond) {
    constexpr uint timersPerSecond = 50;
    signalsPerTimer_ = signalsPerSecond / timersPerSecond;
    if (signalsPerSecond > 0)
        flood_.start(1000 / timersPerSecond, this);
    else
        flood_.stop();
}

void DemoPlayer::timerEvent(QTimerEvent* /*event*/) {
    auto signal =
        QDBusMessage::createSignal(QStringLiteral("/org/mpris/MediaPlayer2"), propertiesInterface,
                                   QStringLiteral("PropertiesChanged"));
    signal.setArguments({playerInterface, playerProperties(), QStringList()});
    for (uint i = 0; i < signalsPerTimer_; ++i)
        QDBusConnection::sessionBus().send(signal);
}

QVariantMap DemoPlayer::applicationProperties() const {
    return {
        {QStringLiteral("Identity"), QStringLiteral("Spotify")},
        {QStringLiteral("DesktopEntry"), QStringLiteral("spotify")},
        {QStringLiteral("CanQuit"), true},
        {QStringLiteral("CanRaise"), true},
        {QStringLiteral("HasTrackList"), false},
    };
}

QVariantMap DemoPlayer::playerProperties() const {
    if (!fixedProperties_.isEmpty())
        return fixedProperties_;
    return {
        {QStringLiteral("PlaybackStatus"), status_},
        {QStringLiteral("Metadata"), metadata_},
        {QStringLiteral("Position"), positionUs()},
        {QStringLiteral("Rate"), 1.0},
        {QStringLiteral("Volume"), 1.0},
        {QStringLiteral("CanControl"), true},
        {QStringLiteral("CanPlay"), true},
        {QStringLiteral("CanPause"), true},
        {QStringLiteral("CanSeek"), true},
    };
}

qint64 DemoPlayer::positionUs() const {
    if (status_ != playing)
        return startUs_;
    const qint64 position = startUs_ + sinceStart_.nsecsElapsed() / 1000;
    const qint64 length = metadata_.value(QStringLiteral("mpris:length")).toLongLong();
    return loops && length > 0 ? position % length : position;
}

void DemoPlayer::setPosition(qint64 microseconds) {
    startUs_ = microseconds;
    sinceStart_.start();
}

void DemoPlayer::setStatus(const QString& status) {
    setPosition(positionUs());
    status_ = status;
}
