#include "platform/linux/MprisPlayer.h"

#include "platform/linux/MprisRecord.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <algorithm>
#include <utility>

namespace brellowind::platform {
namespace {

const QLatin1String namePrefix("org.mpris.MediaPlayer2.");
const QLatin1String instanceMark(".instance");
const QLatin1String objectPath("/org/mpris/MediaPlayer2");
const QLatin1String playerInterface("org.mpris.MediaPlayer2.Player");

ScriptOutcome failure(const QString& description) {
    return {.text = std::nullopt, .error = description.toStdString()};
}

ScriptOutcome failure(const QDBusMessage& error) {
    return failure(error.errorName() + QLatin1String(": ") + error.errorMessage());
}

bool isTimeout(const QDBusMessage& reply) {
    const QDBusError::ErrorType type = QDBusError(reply).type();
    return type == QDBusError::NoReply || type == QDBusError::Timeout ||
           type == QDBusError::TimedOut;
}

} // namespace

MprisPlayer::MprisPlayer(QDBusConnection bus, MprisVocabulary vocabulary)
    : bus_(std::move(bus)), vocabulary_(std::move(vocabulary)) {}

MprisPlayer::~MprisPlayer() = default;

ScriptOutcome MprisPlayer::execute(std::string_view source) {
    if (source == vocabulary_.readOutScript)
        return readOut();
    if (source == vocabulary_.playPauseScript)
        return playPause();
    return {};
}

std::vector<std::optional<std::string>> MprisPlayer::bundleIdentifiers() {
    return {static_cast<std::size_t>(runningPlayers().size()), vocabulary_.bundleIdentifier};
}

QStringList MprisPlayer::runningPlayers() const {
    auto request = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("ListNames"));
    const auto reply = bus_.call(request, QDBus::Block, static_cast<int>(patience.count()));
    const QStringList names = reply.arguments().value(0).toStringList();

    QStringList plain;
    QStringList instances;
    for (const auto& player : vocabulary_.players) {
        const QString name = namePrefix + QString::fromStdString(player);
        for (const auto& candidate : names) {
            if (candidate == name)
                plain.append(candidate);
            else if (candidate.startsWith(name + instanceMark))
                instances.append(candidate);
        }
    }
    return plain + instances;
}

ScriptOutcome MprisPlayer::readOut() {
    const QStringList players = runningPlayers();
    if (players.isEmpty())
        return {.text = std::string(), .error = std::nullopt};
    auto request = QDBusMessage::createMethodCall(players.first(), objectPath,
                                                  QStringLiteral("org.freedesktop.DBus.Properties"),
                                                  QStringLiteral("GetAll"));
    request << QString(playerInterface);
    const auto reply = call(request);
    if (reply.type() == QDBusMessage::ErrorMessage)
        return failure(reply);
    if (reply.signature() != QLatin1String("a{sv}"))
        return failure(QStringLiteral("the player's answer is of the wrong type"));
    const auto properties = qdbus_cast<QVariantMap>(reply.arguments().constFirst());
    return {.text = mprisRecord(properties), .error = std::nullopt};
}

ScriptOutcome MprisPlayer::playPause() {
    const QStringList players = runningPlayers();
    if (players.isEmpty())
        return failure(QStringLiteral("the player is not running"));
    const auto reply = call(QDBusMessage::createMethodCall(
        players.first(), objectPath, playerInterface, QStringLiteral("PlayPause")));
    return reply.type() == QDBusMessage::ErrorMessage ? failure(reply) : ScriptOutcome{};
}

QDBusMessage MprisPlayer::call(const QDBusMessage& request) {
    if (recovery_)
        return request.createErrorReply(QDBusError::NoReply, QStringLiteral("the player hangs"));
    auto reply = bus_.call(request, QDBus::Block, static_cast<int>(patience.count()));
    if (isTimeout(reply))
        awaitRecovery(request.service());
    return reply;
}

/// Sends one ping and lets readings fail until it is answered, or known never to be.
void MprisPlayer::awaitRecovery(const QString& player) {
    const auto ping = QDBusMessage::createMethodCall(
        player, objectPath, QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"));
    recovery_ = std::make_unique<QDBusPendingCallWatcher>(bus_.asyncCall(ping));
    QObject::connect(recovery_.get(), &QDBusPendingCallWatcher::finished, recovery_.get(),
                     [this, player](QDBusPendingCallWatcher* watcher) {
                         watcher->deleteLater();
                         static_cast<void>(recovery_.release());
                         if (isTimeout(watcher->reply()))
                             awaitRecovery(player);
                     });
}

} // namespace brellowind::platform
