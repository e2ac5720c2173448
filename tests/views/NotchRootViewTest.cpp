// SPDX-License-Identifier: MIT

#include "views/RootViewFixture.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace brellowind {
namespace {

using namespace std::chrono_literals;
using Case = LyricsState::Case;
using platform::HttpResponse;
using platform::TransportError;
using test::synced;
using test::View;

TEST(NotchRootView, AsksNobodyBeforeItAppears) {
    View view;
    view.advance(3s);
    EXPECT_EQ(view.text(), "No music playing");
    EXPECT_EQ(view.spotify.readings(), 0U);
    EXPECT_EQ(view.requests(), 0U);
}

TEST(NotchRootViewText, SaysSoWhenNothingPlaysAndAsksForNoLyrics) {
    View view;
    view.spotify.quit();
    view.view.appear();
    view.advance(3s);
    EXPECT_EQ(view.text(), "No music playing");
    EXPECT_EQ(view.requests(), 0U);
    EXPECT_EQ(view.lyricsCase(), Case::idle);
}

TEST(NotchRootViewText, IsTheTitleUntilTheLoadBegins) {
    View view;
    std::string text;
    const auto subscription = view.view.nowPlaying().isPlaying.observe([&] { text = view.text(); });
    view.appear();
    EXPECT_EQ(text, "Song");
}

TEST(NotchRootViewText, SaysThatLyricsAreLoading) {
    View view;
    view.view.appear();
    view.runTurns();
    EXPECT_EQ(view.text(), "Loading lyrics…");
    view.advance(30s);
    EXPECT_EQ(view.text(), "Loading lyrics…");
}

TEST(NotchRootViewText, FollowsTheSongLineByLine) {
    View view;
    view.spotify.plays = true;
    view.appearAnswered(synced(R"([00:00.20]one\n[00:00.40]\n[00:00.60]three)"));
    EXPECT_EQ(view.text(), "♪") << "before the first line";
    view.advance(150ms);
    EXPECT_EQ(view.text(), "♪");
    view.advance(100ms);
    EXPECT_EQ(view.text(), "one");
    view.advance(200ms);
    EXPECT_EQ(view.text(), "♪") << "in an instrumental break";
    view.advance(200ms);
    EXPECT_EQ(view.text(), "three");
}

TEST(NotchRootViewText, StaysOnTheLastLineToTheEnd) {
    View view;
    view.spotify.position = 100000;
    view.appearAnswered(synced(R"([00:01.00]one\n[00:02.00]last)"));
    EXPECT_EQ(view.text(), "last");
}

TEST(NotchRootViewText, ShowsALineUnchanged) {
    View view;
    view.spotify.position = 5;
    view.appearAnswered(synced("[00:01.00]\\u200b 夜に駆ける 🎵 \\r"));
    EXPECT_EQ(view.text(), "\u200B 夜に駆ける 🎵 \r");
}

TEST(NotchRootViewText, GoesBackWithThePlayer) {
    View view;
    view.spotify.position = 5;
    view.appearAnswered(synced(R"([00:01.00]one\n[00:04.00]two)"));
    EXPECT_EQ(view.text(), "two");
    view.spotify.position = 2;
    view.advance(1s);
    EXPECT_EQ(view.text(), "one");
}

TEST(NotchRootViewText, IsTheTitleWithoutSyncedLyrics) {
    const std::pair<platform::HttpResult, Case> answers[] = {
        {HttpResponse{200, R"({"plainLyrics":"words"})"}, Case::plain},
        {HttpResponse{404, ""}, Case::notFound},
        {HttpResponse{500, "oops"}, Case::failed},
        {TransportError{"no route"}, Case::failed},
    };
    for (const auto& [answer, state] : answers) {
        View view;
        view.spotify.position = 5;
        view.appearAnswered(answer);
        EXPECT_EQ(view.lyricsCase(), state);
        EXPECT_EQ(view.text(), "Song");
    }
}

TEST(NotchRootViewText, OfAnUntitledSongWithoutLyricsIsEmpty) {
    View view;
    view.spotify.title.clear();
    view.appearAnswered(HttpResponse{404, ""});
    EXPECT_EQ(view.text(), "");
}

TEST(NotchRootViewText, SaysThatNothingPlaysFromTheReadingThatMissesThePlayer) {
    View view;
    view.spotify.position = 5;
    view.appearAnswered(synced("[00:01.00]one"));
    ASSERT_EQ(view.text(), "one");
    view.spotify.quit();
    view.advance(999ms);
    EXPECT_EQ(view.text(), "one");
    view.advance(1ms);
    EXPECT_EQ(view.text(), "No music playing");
}

TEST(NotchRootViewText, KnowsInHowManySecondsTheNextLineComes) {
    View view;
    view.spotify.position = 5;
    view.appear();
    EXPECT_EQ(view.view.timeUntilNextLine(), std::nullopt) << "no lyrics yet";
    view.machine.http.answer(0, synced(R"([00:07.00]one\n[00:12.50]two)"));
    view.runTurns();
    EXPECT_EQ(view.view.timeUntilNextLine(), 2) << "before the first";
    const auto seekTo = [&](double seconds) {
        view.spotify.position = seconds;
        view.advance(1s);
    };
    seekTo(8);
    EXPECT_EQ(view.view.timeUntilNextLine(), 4.5);
    seekTo(13);
    EXPECT_EQ(view.view.timeUntilNextLine(), std::nullopt) << "after the last";
    seekTo(8);
    view.spotify.quit();
    view.advance(1s);
    EXPECT_EQ(view.view.timeUntilNextLine(), std::nullopt) << "the song is over";
}

TEST(NotchRootViewLoad, IsStartedOncePerSong) {
    View view;
    view.spotify.plays = true;
    view.appearAnswered(TransportError{"no route"});
    view.advance(10s);
    view.spotify.durationMs = 1;
    view.spotify.artwork = "https://covers.example/late";
    view.spotify.plays = false;
    view.advance(10s);
    EXPECT_EQ(view.spotify.readings(), 21U);
    EXPECT_EQ(view.requests(), 1U);
}

TEST(NotchRootViewLoad, FollowsTheSongAndDropsTheEarlierOne) {
    View view;
    view.view.appear();
    view.runTurns();
    view.spotify.playSong("Next");
    view.spotify.position = 5;
    view.advance(1s);
    EXPECT_EQ(view.text(), "Loading lyrics…");
    ASSERT_EQ(view.requests(), 2U);
    EXPECT_TRUE(view.machine.http.requests[0]->aborted);
    EXPECT_NE(view.machine.http.requests[1]->request.url.find("track_name=Next&"),
              std::string::npos);
    view.machine.http.answer(1, synced("[00:01.00]line of next"));
    EXPECT_EQ(view.text(), "line of next");
}

TEST(NotchRootViewLoad, ASongChangeTakesTheOldLinesAway) {
    View view;
    view.spotify.position = 5;
    view.appearAnswered(synced("[00:01.00]line of song"));
    view.spotify.playSong("Next");
    view.spotify.position = 5;
    view.advance(1s);
    EXPECT_EQ(view.text(), "Loading lyrics…");
    EXPECT_TRUE(view.view.lyrics().lines().empty());
}

TEST(NotchRootViewLoad, IsClearedWhenThePlayerQuits) {
    View view;
    view.appearAnswered(synced("[00:01.00]one"));
    view.spotify.quit();
    view.advance(1s);
    EXPECT_EQ(view.lyricsCase(), Case::idle);
    EXPECT_EQ(view.requests(), 1U);
}

TEST(NotchRootViewLoad, InFlightIsAbortedWhenThePlayerQuits) {
    View view;
    view.view.appear();
    view.runTurns();
    view.spotify.quit();
    view.advance(1s);
    EXPECT_TRUE(view.machine.http.requests.at(0)->aborted);
    EXPECT_EQ(view.lyricsCase(), Case::idle);
    EXPECT_EQ(view.machine.tasks.running(), 0U);
}

TEST(NotchRootViewLoad, OfTheSameSongStartsAgainAfterThePlayerCameBack) {
    View view;
    view.appearAnswered(TransportError{"no route"});
    view.spotify.quit();
    view.advance(1s);
    view.spotify.launch();
    view.advance(1s);
    EXPECT_EQ(view.requests(), 2U);
    EXPECT_EQ(view.lyricsCase(), Case::loading);
}

TEST(NotchRootViewRedraw, ComesOnceATurnHoweverMuchChanges) {
    View view;
    view.appearAnswered(HttpResponse{404, ""});
    int redraws = 0;
    const auto subscription = view.view.onRedraw([&] { ++redraws; });
    view.advance(999ms);
    EXPECT_EQ(redraws, 0) << "nothing is published while paused";
    int assignments = 0;
    const auto& nowPlaying = view.view.nowPlaying();
    const auto flag = nowPlaying.isPlaying.observe([&] { ++assignments; });
    const auto position = nowPlaying.positionSec.observe([&] { ++assignments; });
    view.advance(1ms);
    EXPECT_EQ(assignments, 2);
    EXPECT_EQ(redraws, 1);
}

TEST(NotchRootViewRedraw, NeverComesInsideTheChange) {
    View view;
    std::vector<std::string> texts;
    const auto subscription = view.view.onRedraw([&] { texts.push_back(view.text()); });
    view.view.appear();
    EXPECT_TRUE(texts.empty());
    view.runTurns();
    ASSERT_FALSE(texts.empty());
    EXPECT_EQ(texts.back(), "Loading lyrics…");
    texts.clear();
    view.machine.http.answer(0, HttpResponse{404, ""});
    EXPECT_TRUE(texts.empty());
    view.runTurns();
    EXPECT_EQ(texts, std::vector<std::string>{"Song"});
}

TEST(NotchRootViewRedraw, FindsTheLoadOfANewSongUnderWay) {
    View view;
    view.appearAnswered(HttpResponse{404, ""});
    view.spotify.playSong("Next");
    std::vector<std::string> texts;
    const auto subscription = view.view.onRedraw([&] { texts.push_back(view.text()); });
    view.advance(1s);
    ASSERT_FALSE(texts.empty());
    for (const auto& text : texts)
        EXPECT_EQ(text, "Loading lyrics…");
}

TEST(NotchRootViewRedraw, EndsWithItsSubscription) {
    View view;
    view.spotify.plays = true;
    view.view.appear();
    int redraws = 0;
    auto subscription = view.view.onRedraw([&] { ++redraws; });
    view.advance(50ms);
    EXPECT_GT(redraws, 0);
    subscription.cancel();
    redraws = 0;
    view.advance(1s);
    EXPECT_EQ(redraws, 0);
}

TEST(NotchRootViewLifetime, EndsWithAllItsTimers) {
    test::TestMachine machine;
    {
        test::RootViewParts parts(machine);
        const auto view = parts.make();
        view->appear();
        machine.mainLoop.advance(100ms);
        machine.http.answer(0, HttpResponse{404, ""});
    }
    EXPECT_EQ(machine.mainLoop.timerCount(), 0U);
    machine.mainLoop.advance(2s);
    EXPECT_EQ(machine.player.readings(), 1U);
}

} // namespace
} // namespace brellowind
