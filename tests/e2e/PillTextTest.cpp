// SPDX-License-Identifier: MIT

#include "e2e/ObservedProgram.h"
#include "loopback/LoopbackServer.h"
#include "session/Desktop.h"
#include "session/EventLoop.h"
#include "session/PlayerProcess.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

using demo::Exchange;
using demo::LoopbackServer;
using std::chrono::milliseconds;

const auto noMusic = QStringLiteral("No music playing");
const auto loading = QStringLiteral("Loading lyrics…");
const auto note = QStringLiteral("♪");

QByteArray synced(const char* lyrics) {
    return QJsonDocument(QJsonObject{{QStringLiteral("syncedLyrics"), QString::fromUtf8(lyrics)},
                                     {QStringLiteral("plainLyrics"), QStringLiteral("words")}})
        .toJson();
}

QVariantMap song(const char* title) {
    return PlayerProcess::metadata(QString::fromUtf8(title), QStringLiteral("Artist"),
                                   QStringLiteral("Album"), 60000);
}

/// The program with a lyrics service whose answers the test sets.
class PillText : public testing::Test {
protected:
    PillText() : program(ProgramSession::on(desktop), service.origin()) {}

    void answerWith(LoopbackServer::Handler handler) { service.handler = std::move(handler); }

    void answerWith(int status, const QByteArray& body, const QByteArray& type) {
        answerWith([=](const Exchange& exchange) { exchange.respond(status, body, type); });
    }

    void play(PlayerProcess& player, const char* title) {
        player.setTrack(song(title));
        player.setStatus("Playing");
    }

    Desktop desktop;
    LoopbackServer service{[](const Exchange& exchange) { exchange.respond(404, "{}"); }};
    ObservedProgram program;
};

TEST_F(PillText, SaysThatNoMusicPlaysWithoutAPlayerAndAsksForNoLyrics) {
    int requests = 0;
    answerWith([&](const Exchange& exchange) {
        ++requests;
        exchange.respond(404, "{}");
    });
    EXPECT_TRUE(program.shows(noMusic));
    runFor(milliseconds(1500));
    EXPECT_EQ(program.text(), noMusic);
    EXPECT_EQ(requests, 0);
}

TEST_F(PillText, SaysThatLyricsLoadUntilTheServiceAnswers) {
    QList<Exchange> held;
    answerWith([&](const Exchange& exchange) { held.append(exchange); });
    PlayerProcess player(desktop.bus.connection());
    play(player, "Slow & \"Long\" + 100% = ? #1; Größe 日本 🎵");
    ASSERT_TRUE(program.shows(loading));
    ASSERT_TRUE(waitUntil([&] { return held.size() == 1; }));
    EXPECT_EQ(held[0].path, "/api/get");
    EXPECT_EQ(held[0].field(QStringLiteral("track_name")),
              QStringLiteral("Slow & \"Long\" + 100% = ? #1; Größe 日本 🎵"));
    EXPECT_EQ(held[0].field(QStringLiteral("artist_name")), QStringLiteral("Artist"));
    EXPECT_EQ(held[0].field(QStringLiteral("album_name")), QStringLiteral("Album"));
    EXPECT_EQ(held[0].field(QStringLiteral("duration")), QStringLiteral("60"));
    EXPECT_TRUE(held[0].header("user-agent").startsWith("Brellowind v0.1 (http"));
    held[0].respond(200, synced("[00:59.00]later"));
    EXPECT_TRUE(program.shows(note));
}

TEST_F(PillText, ShowsTheNoteThenEachLineInTimeAndTheNoteInAGap) {
    answerWith(200, synced("[00:01.50]one\n[00:02.50]two\n[00:03.50]\n[00:04.50]three"),
               "application/json");
    PlayerProcess player(desktop.bus.connection());
    play(player, "Song");
    ASSERT_TRUE(program.shows(QStringLiteral("three")));
    EXPECT_EQ(program.texts(), (QStringList{noMusic, loading, note, QStringLiteral("one"),
                                            QStringLiteral("two"), note, QStringLiteral("three")}));
}

TEST_F(PillText, FollowsAPauseASeekAndAResumptionFromThePlayersSide) {
    answerWith(200, synced("[00:00.00]start\n[00:20.00]middle\n[00:22.00]end"), "application/json");
    PlayerProcess player(desktop.bus.connection());
    play(player, "Song");
    ASSERT_TRUE(program.shows(QStringLiteral("start")));
    player.setStatus("Paused");
    player.setPosition(21);
    ASSERT_TRUE(program.shows(QStringLiteral("middle")));
    runFor(milliseconds(2500));
    EXPECT_EQ(program.text(), QStringLiteral("middle"));
    player.setStatus("Playing");
    EXPECT_TRUE(program.shows(QStringLiteral("end")));
}

TEST_F(PillText, DropsTheSlowAnswerForAnEarlierTrackAndClosesItsConnection) {
    QList<Exchange> held;
    answerWith([&](const Exchange& exchange) {
        if (exchange.field(QStringLiteral("track_name")) == QStringLiteral("First"))
            held.append(exchange);
        else
            exchange.respond(200, synced("[00:00.00]second's line"));
    });
    PlayerProcess player(desktop.bus.connection());
    play(player, "First");
    ASSERT_TRUE(waitUntil([&] { return held.size() == 1; }));
    play(player, "Second");
    ASSERT_TRUE(program.shows(QStringLiteral("second's line")));
    EXPECT_TRUE(waitUntil([&] { return held[0].connection.isNull(); }));
    held[0].respond(200, synced("[00:00.00]first's line"));
    runFor(milliseconds(500));
    EXPECT_EQ(program.text(), QStringLiteral("second's line"));
    EXPECT_FALSE(program.texts().contains(QStringLiteral("first's line")));
}

struct Failure {
    const char* name;
    LoopbackServer::Handler handler;

    friend void PrintTo(const Failure& failure, std::ostream* out) { *out << failure.name; }
};

class PillTextOnFailure : public PillText, public testing::WithParamInterface<Failure> {};

TEST_P(PillTextOnFailure, IsTheTitle) {
    answerWith(GetParam().handler);
    PlayerProcess player(desktop.bus.connection());
    play(player, "The Title");
    EXPECT_TRUE(program.shows(QStringLiteral("The Title")));
}

INSTANTIATE_TEST_SUITE_P(
    Service, PillTextOnFailure,
    testing::Values(
        Failure{"NotFound", [](const Exchange& e) { e.respond(404, synced("[00:00.00]no")); }},
        Failure{"ErrorWithHtml",
                [](const Exchange& e) { e.respond(500, "<html>sorry</html>", "text/html"); }},
        Failure{"BodyThatIsNotJson", [](const Exchange& e) { e.respond(200, "[00:00.00]no"); }},
        Failure{"ConnectionDropped", [](const Exchange& e) { e.drop(); }},
        Failure{"ConnectionDroppedInTheBody",
                [](const Exchange& e) {
                    e.send("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n{\"syncedLyrics\":");
                    if (e.connection)
                        e.connection->disconnectFromHost();
                }},
        Failure{"OnlyPlainLyrics",
                [](const Exchange& e) { e.respond(200, R"({"plainLyrics":"words"})"); }}),
    [](const auto& parameter) { return std::string(parameter.param.name); });

TEST_F(PillText, SaysThatNoMusicPlaysOnceThePlayerHasQuit) {
    answerWith(200, synced("[00:00.00]line"), "application/json");
    PlayerProcess player(desktop.bus.connection());
    play(player, "Song");
    ASSERT_TRUE(program.shows(QStringLiteral("line")));
    player.quit();
    EXPECT_TRUE(program.shows(noMusic));
}

TEST_F(PillText, GoesOnSingingWhileThePlayerHangsAndFollowsItAgainAfterwards) {
    answerWith(200, synced("[00:00.00]one\n[00:02.00]two\n[00:04.00]three\n[00:50.00]far"),
               "application/json");
    PlayerProcess player(desktop.bus.connection());
    play(player, "Song");
    ASSERT_TRUE(program.shows(QStringLiteral("one")));
    player.hang();
    EXPECT_TRUE(program.shows(QStringLiteral("three")));
    player.recover();
    player.setPosition(51);
    EXPECT_TRUE(program.shows(QStringLiteral("far")));
}

} // namespace
} // namespace brellowind::test
