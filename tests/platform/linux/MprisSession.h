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

/// A session bus, and the adapter that a test reads players with. How long the adapter waits until
/// a player is late is up to the test, which moves the time of `mainLoop`.
class MprisSession : public testing::Test, protected Log {
protected:
    using Answer = std::optional<Player::Answer>; ///< absent until the reading has ended

    /// The adapter for `players`, names after "org.mpris.MediaPlayer2.".
    MprisPlayer adapter(std::vector<std::string> players = {"spotify"});

    /// Begins a reading, which ends in `answer`.
    void begin(Player& player, Answer& answer);

    /// The answer of a whole reading; absent when it does not end.
    Answer read(Player& player);

    /// Whether a reading that has begun ends.
    static bool ends(const Answer& answer);

    /// Reads until a reading matches: the bus may tell the test of a change before it tells the
    /// adapter.
    template <typename Matcher>
    bool readsSoon(Player& player, Matcher matcher);

    /// Runs a play/pause command to its end.
    void playPause(Player& player);

    /// Moves time until players that have not answered are late.
    void passPatience() { mainLoop.advance(MprisProxy::patience); }

    static QVariantMap song(const char* title);

    /// The reading of `song` in a player that stands at its beginning and has never played.
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

/// Whatever the rest of the reading.
inline auto hasTitle(const std::string& title) {
    return testing::Optional(testing::VariantWith<Player::Snapshot>(
        testing::Field(&Player::Snapshot::track, testing::Field(&Track::title, title))));
}

} // namespace brellowind::platform
