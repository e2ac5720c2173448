#pragma once

#include "platform/linux/MprisPlayer.h"
#include "session/Desktop.h"
#include "session/PlayerProcess.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace brellowind::platform {

/// A session bus, and the adapter that a test reads players with.
class MprisSession : public testing::Test {
protected:
    static constexpr const char* readOut = "read out";
    static constexpr const char* toggle = "toggle";

    /// The adapter for `players`, names after "org.mpris.MediaPlayer2.".
    MprisPlayer reader(std::vector<std::string> players = {"spotify"}) const {
        return {BusConnection(bus.address().toStdString()),
                MprisVocabulary{.bundleIdentifier = "com.spotify.client",
                                .readOutScript = readOut,
                                .playPauseScript = toggle,
                                .players = std::move(players)}};
    }

    static QVariantMap song(const char* title) {
        return test::PlayerProcess::metadata(QString::fromUtf8(title), QStringLiteral("Artist"),
                                             QStringLiteral("Album"), 215000);
    }

    /// The record of `song` in a player that stands at its beginning and has never played.
    static std::string recordOf(const std::string& title) {
        return title + "\x1F"
                       "Artist\x1F"
                       "Album\x1F"
                       "215000\x1F\x1F"
                       "0\x1F"
                       "stopped";
    }

    test::SessionBus bus;
};

} // namespace brellowind::platform
