// SPDX-License-Identifier: MIT

#include "Fuzz.h"
#include "platform/macos/SpotifyBridge.h"

#include <cmath>
#include <string>
#include <vector>

// Arbitrary bytes as the result of the read-out script.

namespace brellowind::fuzz {
namespace {

namespace SpotifyBridge = platform::SpotifyBridge;

std::vector<std::string> fieldsOf(std::string_view record) {
    std::vector<std::string> fields(1);
    for (const char character : record) {
        if (character == SpotifyBridge::fieldSeparator)
            fields.emplace_back();
        else
            fields.back() += character;
    }
    return fields;
}

void requireSaid(const platform::Player::Snapshot& snapshot,
                 const std::vector<std::string>& fields) {
    const auto& track = snapshot.track;
    require(track.title == fields[0] && track.artist == fields[1] && track.album == fields[2],
            "title, artist and album are taken as they are");
    require(track.artworkURL.value_or("") == fields[4], "the cover's location is taken as it is");
    require(track.artworkURL.has_value() != fields[4].empty(), "no location is no cover");
    require(std::abs(track.durationMs) < 9.2e21, "the duration fits the lyrics service's query");
    require(std::isfinite(snapshot.positionSec), "the position is a number");
    require(fields[3].find(',') == std::string::npos || track.durationMs == 0,
            "a duration has no decimal comma");
    require(snapshot.isPlaying == (fields[6] == "playing"), "it plays when it says so");
}

} // namespace
} // namespace brellowind::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brellowind;
    const auto record = fuzz::text(data, size);
    const auto snapshot = platform::SpotifyBridge::snapshot(record);
    const auto fields = fuzz::fieldsOf(record);
    fuzz::require(snapshot.has_value() == (fields.size() >= 7), "seven fields are a reading");
    if (snapshot)
        fuzz::requireSaid(*snapshot, fields);
    return 0;
}
