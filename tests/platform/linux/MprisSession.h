// SPDX-License-Identifier: MIT

#pragma once

#include "platform/TaskRunner.h"
#include "platform/linux/MprisPlayer.h"
#include "session/Desktop.h"
#include "session/EventLoop.h"
#include "session/PlayerProcess.h"
#include "support/FakeMainLoop.h"

#include <gmock/gmock.h>
#include <optional>
#include <string>
#include <vector>

namespace brellowind::platform {

/// A session bus and the tested adapter. `mainLoop` has simulated time, which decides when a player
/// is late.
class MprisSession : public testing::Test, protected Log {
protected:
    using Answer = std::optional<Player::Answer>; ///< absent until the reading has ended

    /// The adapter for `players`, names without "org.mpris.MediaPlayer2.".
    MprisPlayer adapter(std::vector<std::string> players = {"spotify"});

    /// Starts a reading, whose result is stored in `answer`.
    void begin(Player& player, Answer& answer);

    /// Performs a reading. Returns nullopt if it does not end.
    Answer read(Player& player);

    /// Waits for the end of a started reading; false after a timeout.
    static bool ends(const Answer& answer);

    /// Reads until a reading matches: the test may be notified of a change before the adapter.
    template <typename Matcher>
    bool readsSoon(Player& player, Matcher matcher);

    /// Performs a play/pause command.
    void playPause(Player& player);

    /// Advances time until players that have not answered are late.
    void passPatience() { mainLoop.advance(MprisProxy::patience); }

    static QVariantMap song(const char* title);

    /// The reading of `song` in a player at its beginning that has never played.
    static Player::Snapshot snapshotOf(const std::string& title);

    /// A line of the log.
    static std::string line(const std::string& description);

    void write(std::string_view text) override { log.emplace_back(text); }

    std::vector<std::string> log;
    test::FakeMainLoop mainLoop;
    TaskRunner tasks{mainLoop};
    test::SessionBus bus;
};

template <typename Matcher>
bool MprisSession::readsSoon(Player& player, Matcher matcher) {
    return test::waitUntil([&] { return testing::Value(read(player), matcher); });
}

inline auto isNotRunning() {
    return testing::Optional(testing::VariantWith<Player::NotRunning>(Player::NotRunning()));
}

inline auto isUnreadable() {
    return testing::Optional(testing::VariantWith<Player::Unreadable>(Player::Unreadable()));
}

inline auto isSnapshot(const Player::Snapshot& snapshot) {
    return testing::Optional(testing::VariantWith<Player::Snapshot>(snapshot));
}

/// Ignores the other fields of the reading.
inline auto hasTitle(const std::string& title) {
    return testing::Optional(testing::VariantWith<Player::Snapshot>(
        testing::Field(&Player::Snapshot::track, testing::Field(&Track::title, title))));
}

} // namespace brellowind::platform
