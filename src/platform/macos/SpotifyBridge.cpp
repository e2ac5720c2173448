// SPDX-License-Identifier: MIT

#include "platform/macos/SpotifyBridge.h"

#include "foundation/Decimal.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>

namespace brellowind::platform::SpotifyBridge {
namespace {

constexpr std::size_t fieldCount = 7;
using Fields = std::array<std::string_view, fieldCount>;

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

/// The number that the whole of `text` spells; 0 when it spells none.
double number(std::string_view text) {
    return readDecimal(text).value_or(0);
}

std::string withDecimalPoint(std::string_view text) {
    std::string repaired(text);
    std::ranges::replace(repaired, ',', '.');
    return repaired;
}

/// Milliseconds whose whole seconds fit 64 bits, else 0.
double readableDuration(double milliseconds) {
    constexpr double limit = 9.2e21;
    return std::abs(milliseconds) < limit ? milliseconds : 0;
}

} // namespace

std::optional<Player::Snapshot> snapshot(std::string_view answer) {
    const auto fields = split(answer);
    if (!fields)
        return std::nullopt;
    const auto& [title, artist, album, duration, artwork, position, state] = *fields;

    // Only the position may come with a decimal comma: the duration is read as it stands.
    Track track(std::string(title), std::string(artist), std::string(album),
                readableDuration(number(duration)),
                artwork.empty() ? std::nullopt : std::optional<std::string>(artwork));
    return Player::Snapshot{std::move(track), state == playingState,
                            number(withDecimalPoint(position))};
}

} // namespace brellowind::platform::SpotifyBridge
