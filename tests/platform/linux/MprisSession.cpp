// SPDX-License-Identifier: MIT

#include "platform/linux/MprisSession.h"

#include <utility>

namespace brellowind::platform {
namespace {

Task<void> keepAnswer(Task<Player::Answer> reading, std::optional<Player::Answer>& answer) {
    answer = co_await std::move(reading);
}

Task<void> noteEnd(Task<void> task, bool& hasEnded) {
    co_await std::move(task);
    hasEnded = true;
}

} // namespace

MprisPlayer MprisSession::adapter(std::vector<std::string> players) {
    return MprisPlayer(bus.connection(), std::move(players), mainLoop, *this);
}

void MprisSession::begin(Player& player, Answer& answer) {
    answer.reset();
    tasks.start(keepAnswer(player.read(), answer));
    mainLoop.runTurns();
}

MprisSession::Answer MprisSession::read(Player& player) {
    Answer answer;
    begin(player, answer);
    EXPECT_TRUE(ends(answer)) << "the reading does not end";
    return answer;
}

bool MprisSession::ends(const Answer& answer) {
    return test::waitUntil([&] { return answer.has_value(); });
}

void MprisSession::playPause(Player& player) {
    bool hasEnded = false;
    tasks.start(noteEnd(player.playPause(), hasEnded));
    mainLoop.runTurns();
    EXPECT_TRUE(test::waitUntil([&] { return hasEnded; })) << "the command does not end";
}

QVariantMap MprisSession::song(const char* title) {
    return test::PlayerProcess::metadata(QString::fromUtf8(title), QStringLiteral("Artist"),
                                         QStringLiteral("Album"), 215000);
}

Player::Snapshot MprisSession::snapshotOf(const std::string& title) {
    return {.track = Track(title, "Artist", "Album", 215000, std::nullopt),
            .isPlaying = false,
            .positionSec = 0};
}

std::string MprisSession::line(const std::string& description) {
    return "Spotify AppleScript error: " + description;
}

} // namespace brellowind::platform
