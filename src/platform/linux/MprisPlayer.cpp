#include "platform/linux/MprisPlayer.h"

#include "platform/linux/MprisRecord.h"

#include <algorithm>
#include <utility>

namespace brellowind::platform {
namespace {

constexpr std::string_view namePrefix = "org.mpris.MediaPlayer2.";
constexpr std::string_view instanceMark = ".instance";
constexpr const char* objectPath = "/org/mpris/MediaPlayer2";
constexpr const char* playerInterface = "org.mpris.MediaPlayer2.Player";

ScriptOutcome failure(std::string description) {
    return {.text = std::nullopt, .error = std::move(description)};
}

ScriptOutcome failure(const BusError& error) {
    return failure(error.name + ": " + error.text);
}

} // namespace

MprisPlayer::MprisPlayer(BusConnection bus, MprisVocabulary vocabulary)
    : bus_(std::move(bus)), vocabulary_(std::move(vocabulary)) {}

ScriptOutcome MprisPlayer::execute(std::string_view source) {
    const bool reads = source == vocabulary_.readOutScript;
    if (!reads && source != vocabulary_.playPauseScript)
        return {};
    // Who asks what runs and then reads need not have the bus asked twice.
    auto players = std::exchange(running_, {});
    if (!reads || players.empty()) {
        auto found = playersOnBus();
        if (const auto* error = std::get_if<BusError>(&found))
            return failure(*error);
        players = std::get<Players>(std::move(found));
    }
    if (!players.empty())
        return reads ? readOut(players.front()) : playPause(players.front());
    return reads ? ScriptOutcome{.text = std::string(), .error = std::nullopt}
                 : failure("the player is not running");
}

std::vector<std::optional<std::string>> MprisPlayer::bundleIdentifiers() {
    auto found = playersOnBus();
    running_ =
        std::holds_alternative<Players>(found) ? std::get<Players>(std::move(found)) : Players();
    return {running_.size(), vocabulary_.bundleIdentifier};
}

std::variant<MprisPlayer::Players, BusError> MprisPlayer::playersOnBus() {
    auto answer = bus_.call(bus_.methodCall("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                            "org.freedesktop.DBus", "ListNames"),
                            patience);
    if (auto* error = std::get_if<BusError>(&answer))
        return std::move(*error);
    auto* names = std::get<BusMessage>(answer).get();
    Players players;
    sd_bus_message_enter_container(names, SD_BUS_TYPE_ARRAY, "s");
    const char* name = nullptr;
    while (sd_bus_message_read_basic(names, SD_BUS_TYPE_STRING, &name) > 0)
        if (rank(name) < ranks())
            players.emplace_back(name);
    // The bus gives the instances in any order, and not always in the same.
    std::ranges::sort(players, {}, [this](const std::string& player) {
        return std::pair(rank(player), std::string_view(player));
    });
    return players;
}

/// First the plain names as they are configured, then their instances; `ranks` for all others.
std::size_t MprisPlayer::rank(std::string_view name) const {
    if (!name.starts_with(namePrefix))
        return ranks();
    name.remove_prefix(namePrefix.size());
    const auto& players = vocabulary_.players;
    for (std::size_t i = 0; i < players.size(); ++i) {
        if (name == players[i])
            return i;
        if (name.starts_with(players[i]) &&
            name.substr(players[i].size()).starts_with(instanceMark))
            return players.size();
    }
    return ranks();
}

ScriptOutcome MprisPlayer::readOut(const std::string& player) {
    const auto request =
        bus_.methodCall(player, objectPath, "org.freedesktop.DBus.Properties", "GetAll");
    if (request)
        sd_bus_message_append(request.get(), "s", playerInterface);
    const auto answer = call(player, request);
    if (const auto* error = std::get_if<BusError>(&answer))
        return failure(*error);
    auto* properties = std::get<BusMessage>(answer).get();
    if (sd_bus_message_has_signature(properties, "a{sv}") <= 0)
        return failure("the player's answer is of the wrong type");
    return {.text = mprisRecord(properties), .error = std::nullopt};
}

ScriptOutcome MprisPlayer::playPause(const std::string& player) {
    const auto answer =
        call(player, bus_.methodCall(player, objectPath, playerInterface, "PlayPause"));
    if (const auto* error = std::get_if<BusError>(&answer))
        return failure(*error);
    return {};
}

BusAnswer MprisPlayer::call(const std::string& player, const BusMessage& request) {
    bus_.process(); // perhaps the ping is answered by now
    if (recovery_)
        return BusError{SD_BUS_ERROR_NO_REPLY, "the player hangs"};
    auto answer = bus_.call(request, patience);
    if (const auto* error = std::get_if<BusError>(&answer); error && error->isTimeout())
        awaitRecovery(player);
    return answer;
}

/// Sends one ping and lets readings fail until it is answered, or known never to be.
void MprisPlayer::awaitRecovery(const std::string& player) {
    hanging_ = player;
    recovery_ = bus_.callLater(
        bus_.methodCall(player, objectPath, "org.freedesktop.DBus.Peer", "Ping"),
        [](sd_bus_message* reply, void* self, sd_bus_error*) {
            static_cast<MprisPlayer*>(self)->recover(*reply);
            return 0;
        },
        this);
}

void MprisPlayer::recover(sd_bus_message& reply) {
    recovery_.reset();
    const auto* error = sd_bus_message_get_error(&reply);
    if (error && BusError{error->name, {}}.isTimeout())
        awaitRecovery(hanging_);
}

} // namespace brellowind::platform
