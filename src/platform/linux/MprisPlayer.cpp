#include "platform/linux/MprisPlayer.h"

#include "platform/linux/MprisRecord.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
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

ScriptOutcome failure(const QDBusError& error) {
    return failure(error.name() + QLatin1String(": ") + error.message());
}

/// A call that never starts a player: one that has just quit stays away.
QDBusMessage playerCall(const QString& player, const QString& interface, const QString& method) {
    auto request = QDBusMessage::createMethodCall(player, objectPath, interface, method);
    request.setAutoStartService(false);
    return request;
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
    const bool reads = source == vocabulary_.readOutScript;
    if (!reads && source != vocabulary_.playPauseScript)
        return {};
    // Who asks what runs and then reads need not have the bus asked twice.
    auto players = std::exchange(running_, {});
    if (!reads || players.isEmpty()) {
        const auto names = namesOnBus();
        if (!names.isValid())
            return failure(names.error());
        players = playersAmong(names);
    }
    if (!players.isEmpty())
        return reads ? readOut(players.first()) : playPause(players.first());
    return reads ? ScriptOutcome{.text = std::string(), .error = std::nullopt}
                 : failure(QStringLiteral("the player is not running"));
}

std::vector<std::optional<std::string>> MprisPlayer::bundleIdentifiers() {
    running_ = playersAmong(namesOnBus());
    return {static_cast<std::size_t>(running_.size()), vocabulary_.bundleIdentifier};
}

QDBusReply<QStringList> MprisPlayer::namesOnBus() const {
    const auto request = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("ListNames"));
    return bus_.call(request, QDBus::Block, static_cast<int>(patience.count()));
}

QStringList MprisPlayer::playersAmong(const QStringList& names) const {
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
    instances.sort(); // the bus gives them in any order, and not always in the same
    return plain + instances;
}

ScriptOutcome MprisPlayer::readOut(const QString& player) {
    auto request = playerCall(player, QStringLiteral("org.freedesktop.DBus.Properties"),
                              QStringLiteral("GetAll"));
    request << QString(playerInterface);
    const auto reply = call(request);
    if (reply.type() == QDBusMessage::ErrorMessage)
        return failure(QDBusError(reply));
    if (reply.signature() != QLatin1String("a{sv}"))
        return failure(QStringLiteral("the player's answer is of the wrong type"));
    const auto properties = qdbus_cast<QVariantMap>(reply.arguments().constFirst());
    return {.text = mprisRecord(properties), .error = std::nullopt};
}

ScriptOutcome MprisPlayer::playPause(const QString& player) {
    const auto reply = call(playerCall(player, playerInterface, QStringLiteral("PlayPause")));
    return reply.type() == QDBusMessage::ErrorMessage ? failure(QDBusError(reply))
                                                      : ScriptOutcome{};
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
    const auto ping =
        playerCall(player, QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"));
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
