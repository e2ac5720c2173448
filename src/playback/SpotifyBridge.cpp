#include "playback/SpotifyBridge.h"

#include "platform/Services.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <utility>

namespace brellowind::SpotifyBridge {
namespace {

constexpr std::string_view logPrefix = "Spotify AppleScript error: ";
constexpr std::size_t fieldCount = 7;
using Fields = std::array<std::string_view, fieldCount>;

std::optional<std::string> run(std::string_view source) {
    auto& services = platform::services();
    auto outcome = services.scripting.execute(source);
    if (outcome.error) {
        services.log.write(std::string(logPrefix) + *outcome.error);
        return std::nullopt;
    }
    return std::move(outcome.text);
}

/// The first seven fields of `record`; absent when it has fewer. What follows them is ignored.
std::optional<Fields> split(std::string_view record) {
    Fields fields;
    for (std::size_t i = 0; i < fieldCount; ++i) {
        const auto end = record.find(fieldSeparator);
        fields[i] = record.substr(0, end);
        const bool isLast = i + 1 == fieldCount;
        if (end == std::string_view::npos && !isLast)
            return std::nullopt;
        if (!isLast)
            record.remove_prefix(end + 1);
    }
    return fields;
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// The number that the whole of `text` spells in C notation; 0 when it spells none.
double number(std::string_view text) {
    const bool hasPlus = text.starts_with('+'); // from_chars takes a minus sign only
    text.remove_prefix(hasPlus ? 1 : 0);
    const auto unsignedText = text.substr(!hasPlus && text.starts_with('-') ? 1 : 0);
    const bool isNumeric =
        unsignedText.starts_with('.') || (!unsignedText.empty() && isDigit(unsignedText.front()));
    if (!isNumeric)
        return 0; // from_chars would also read "inf" and "nan"
    double value = 0;
    const auto* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && stop == end ? value : 0;
}

std::string withDecimalPoint(std::string_view text) {
    std::string repaired(text);
    std::ranges::replace(repaired, ',', '.');
    return repaired;
}

} // namespace

Snapshot::Snapshot(Track track_, bool isPlaying_, double positionSec_)
    : track(std::move(track_)), isPlaying(isPlaying_), positionSec(positionSec_) {}

bool isRunning() {
    const auto identifiers = platform::services().runningApplications.bundleIdentifiers();
    return std::ranges::any_of(identifiers,
                               [](const auto& running) { return running == bundleIdentifier; });
}

std::optional<Snapshot> snapshot() {
    const auto answer = run(readOutScript);
    if (!answer || answer->empty())
        return std::nullopt;
    const auto fields = split(*answer);
    if (!fields)
        return std::nullopt;
    const auto& [title, artist, album, duration, artwork, position, state] = *fields;

    // Only the position may come with a decimal comma: the duration is read as it stands.
    Track track(std::string(title), std::string(artist), std::string(album), number(duration),
                artwork.empty() ? std::nullopt : std::optional<std::string>(artwork));
    return Snapshot(std::move(track), state == playingState, number(withDecimalPoint(position)));
}

void playPause() {
    run(playPauseScript);
}

} // namespace brellowind::SpotifyBridge
