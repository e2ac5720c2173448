// SPDX-License-Identifier: MIT

#include "lyrics/LyricsStore.h"
#include "support/TestMachine.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace brellowind {
namespace {

using Case = LyricsState::Case;
using platform::HttpResponse;
using platform::TransportError;

constexpr double infinity = std::numeric_limits<double>::infinity();

Track track(const std::string& title) {
    return {title, "Artist", "Album", 215000, std::nullopt};
}

HttpResponse plainWords(const std::string& words) {
    return {200, R"({"plainLyrics":")" + words + R"("})"};
}

HttpResponse synced(const std::string& lrc) {
    return {200, R"({"syncedLyrics":")" + lrc + R"("})"};
}

struct Store {
    test::TestMachine machine;
    std::shared_ptr<LyricsStore> lyrics =
        std::make_shared<LyricsStore>(machine.tasks, machine.http, machine.constants);

    Case which() const { return lyrics->state->which(); }
    std::size_t requests() const { return machine.http.requests.size(); }

    void load(const Track& next) {
        lyrics->load(next);
        machine.mainLoop.runTurns();
    }

    void loadAnswered(const Track& next, platform::HttpResult answer) {
        load(next);
        machine.http.answer(requests() - 1, std::move(answer));
    }
};

/// Records the state before each assignment.
class Journal {
public:
    explicit Journal(const LyricsStore& lyrics)
        : subscription_(lyrics.state.observe(
              [this, &lyrics] { replaced.push_back(lyrics.state->which()); })) {}

    std::vector<Case> replaced;

private:
    Subscription subscription_;
};

TEST(LyricsStore, IsIdleAtFirst) {
    const Store store;
    EXPECT_EQ(store.which(), Case::idle);
    EXPECT_TRUE(store.lyrics->lines().empty());
    EXPECT_EQ(store.lyrics->activeIndex(10), std::nullopt);
    EXPECT_EQ(store.requests(), 0U);
}

TEST(LyricsStoreLoad, IsLoadingAtOnceAndAsksTheServiceOnTheNextTurn) {
    Store store;
    store.lyrics->load(track("A"));
    EXPECT_EQ(store.which(), Case::loading);
    EXPECT_EQ(store.requests(), 0U);
    store.machine.mainLoop.runTurns();
    EXPECT_EQ(store.which(), Case::loading);
    ASSERT_EQ(store.requests(), 1U);
    EXPECT_TRUE(store.machine.http.requests[0]->request.url.ends_with(
        "?track_name=A&artist_name=Artist&album_name=Album&duration=215"));
}

TEST(LyricsStoreLoad, EndsInTheStateThatTheAnswerMeans) {
    Store store;
    store.loadAnswered(track("synced"), synced("[00:01.00]a"));
    EXPECT_EQ(store.which(), Case::loaded);
    EXPECT_EQ(store.lyrics->lines().at(0).text, "a");
    store.loadAnswered(track("plain"), plainWords("words"));
    EXPECT_EQ(*store.lyrics->state, LyricsState::plain("words"));
    store.loadAnswered(track("missing"), HttpResponse{404, ""});
    EXPECT_EQ(store.which(), Case::notFound);
    store.loadAnswered(track("unreachable"), TransportError{"no route"});
    EXPECT_EQ(store.which(), Case::failed);
    EXPECT_EQ(store.machine.tasks.running(), 0U);
}

TEST(LyricsStoreLoad, NotifiesBeforeEachAssignment) {
    Store store;
    const Journal journal(*store.lyrics);
    store.loadAnswered(track("A"), plainWords("a"));
    store.loadAnswered(track("B"), HttpResponse{404, ""});
    EXPECT_EQ(journal.replaced,
              (std::vector{Case::idle, Case::loading, Case::plain, Case::loading}));
}

TEST(LyricsStoreLoad, OfTheCurrentTrackDoesNothingWhileLoading) {
    Store store;
    store.load(track("A"));
    const Journal journal(*store.lyrics);
    store.load(track("A"));
    EXPECT_EQ(store.requests(), 1U);
    EXPECT_FALSE(store.machine.http.requests[0]->aborted);
    EXPECT_TRUE(journal.replaced.empty());
}

TEST(LyricsStoreLoad, OfTheCurrentTrackDoesNothingHoweverTheLoadEnded) {
    const platform::HttpResult endings[] = {TransportError{"no route"}, HttpResponse{404, ""},
                                            plainWords("words"), synced("[00:01.00]a")};
    for (const auto& ending : endings) {
        Store store;
        store.loadAnswered(track("A"), ending);
        const auto before = *store.lyrics->state;
        const Journal journal(*store.lyrics);
        store.load(track("A"));
        EXPECT_EQ(store.requests(), 1U);
        EXPECT_EQ(*store.lyrics->state, before);
        EXPECT_TRUE(journal.replaced.empty());
    }
}

TEST(LyricsStoreLoad, TracksThatDifferOnlyInDurationOrArtworkAreOne) {
    Store store;
    store.load(track("A"));
    auto other = track("A");
    other.durationMs = 1;
    other.artworkURL = "https://covers.example/1";
    store.load(other);
    EXPECT_EQ(store.requests(), 1U);
}

TEST(LyricsStoreLoad, AnUntitledTrackIsATrackToo) {
    Store store;
    store.load(Track("", "", "", 0, std::nullopt));
    EXPECT_EQ(store.which(), Case::loading);
    EXPECT_EQ(store.requests(), 1U);
}

TEST(LyricsStoreLoad, AfterAFailureAndAClearAsksAgain) {
    Store store;
    store.loadAnswered(track("A"), TransportError{"no route"});
    store.lyrics->clear();
    store.loadAnswered(track("A"), plainWords("words"));
    EXPECT_EQ(store.requests(), 2U);
    EXPECT_EQ(store.which(), Case::plain);
}

TEST(LyricsStoreLoad, AfterAnotherTrackAsksAgain) {
    Store store;
    store.loadAnswered(track("A"), TransportError{"no route"});
    store.loadAnswered(track("B"), plainWords("b"));
    store.loadAnswered(track("A"), plainWords("a"));
    EXPECT_EQ(store.lyrics->state->text(), "a");
    EXPECT_EQ(store.requests(), 3U);
}

TEST(LyricsStoreLoad, OfAnotherTrackAbortsTheEarlierFetchAndDropsItsAnswer) {
    Store store;
    store.load(track("A"));
    store.lyrics->load(track("B"));
    EXPECT_TRUE(store.machine.http.requests[0]->aborted);
    EXPECT_EQ(store.which(), Case::loading);
    const Journal journal(*store.lyrics);
    store.machine.mainLoop.runTurns();
    EXPECT_TRUE(journal.replaced.empty()) << "the cancelled fetch of A wrote its failure";
    store.machine.http.answer(1, plainWords("b"));
    EXPECT_EQ(store.lyrics->state->text(), "b");
    EXPECT_EQ(journal.replaced, std::vector{Case::loading});
    EXPECT_EQ(store.machine.tasks.running(), 0U);
}

TEST(LyricsStoreLoad, BeforeTheEarlierFetchBeganLeavesOnlyTheLaterRequest) {
    Store store;
    store.lyrics->load(track("A"));
    store.load(track("B"));
    ASSERT_EQ(store.requests(), 1U);
    EXPECT_NE(store.machine.http.requests[0]->request.url.find("track_name=B"), std::string::npos);
    EXPECT_EQ(store.which(), Case::loading);
    EXPECT_EQ(store.machine.tasks.running(), 1U);
}

TEST(LyricsStoreLoad, BackAndForthShowsTheAnswerOfTheLastLoad) {
    Store store;
    store.load(track("A"));
    store.load(track("B"));
    store.load(track("A"));
    ASSERT_EQ(store.requests(), 3U);
    EXPECT_TRUE(store.machine.http.requests[0]->aborted);
    EXPECT_TRUE(store.machine.http.requests[1]->aborted);
    EXPECT_FALSE(store.machine.http.requests[2]->aborted);
    store.machine.http.answer(2, plainWords("a"));
    EXPECT_EQ(store.lyrics->state->text(), "a");
}

TEST(LyricsStoreLoad, DoesNotTouchTheFinishedFetchOfTheTrackBefore) {
    Store store;
    store.loadAnswered(track("A"), plainWords("a"));
    store.load(track("B"));
    EXPECT_FALSE(store.machine.http.requests[0]->aborted);
}

TEST(LyricsStoreClear, ReturnsToIdleAndAbortsTheFetch) {
    Store store;
    store.load(track("A"));
    store.lyrics->clear();
    EXPECT_EQ(store.which(), Case::idle);
    EXPECT_TRUE(store.machine.http.requests[0]->aborted);
    const Journal journal(*store.lyrics);
    store.machine.mainLoop.runTurns();
    EXPECT_TRUE(journal.replaced.empty());
    EXPECT_EQ(store.which(), Case::idle);
    EXPECT_EQ(store.machine.tasks.running(), 0U);
}

TEST(LyricsStoreClear, BeforeTheFetchBeganSendsNothing) {
    Store store;
    store.lyrics->load(track("A"));
    store.lyrics->clear();
    store.machine.mainLoop.runTurns();
    EXPECT_EQ(store.requests(), 0U);
    EXPECT_EQ(store.which(), Case::idle);
}

TEST(LyricsStoreClear, ForgetsLoadedLines) {
    Store store;
    store.loadAnswered(track("A"), synced("[00:01.00]a"));
    store.lyrics->clear();
    EXPECT_TRUE(store.lyrics->lines().empty());
    EXPECT_EQ(store.lyrics->activeIndex(5), std::nullopt);
}

TEST(LyricsStoreClear, OfAnIdleStoreNotifiesOnce) {
    Store store;
    const Journal journal(*store.lyrics);
    store.lyrics->clear();
    EXPECT_EQ(journal.replaced, std::vector{Case::idle});
}

TEST(LyricsStoreLifetime, DestructionDoesNotCancelTheFetchWhoseAnswerIsDropped) {
    Store store;
    store.load(track("A"));
    const std::weak_ptr<LyricsStore> observer = store.lyrics;
    store.lyrics.reset();
    EXPECT_TRUE(observer.expired()) << "the fetch holds the store weakly";
    EXPECT_FALSE(store.machine.http.requests[0]->aborted);
    EXPECT_EQ(store.machine.tasks.running(), 1U);
    store.machine.http.answer(0, plainWords("a"));
    EXPECT_EQ(store.machine.tasks.running(), 0U);
}

TEST(LyricsStoreLines, AreTheStoredOnesAndNoCopy) {
    Store store;
    store.loadAnswered(track("A"), synced("[00:01.00]a"));
    EXPECT_EQ(&store.lyrics->lines(), &store.lyrics->state->lines());
    EXPECT_EQ(store.lyrics->lines().size(), 1U);
}

TEST(LyricsStoreActiveIndex, IsTheLastLineThatHasBegun) {
    Store store;
    store.loadAnswered(track("A"), synced(R"([00:01.00]a\n[00:02.00]b\n[00:02.00]c\n[00:03.00]d)"));
    const auto active = [&](double seconds) { return store.lyrics->activeIndex(seconds); };
    EXPECT_EQ(active(-infinity), std::nullopt);
    EXPECT_EQ(active(-1), std::nullopt);
    EXPECT_EQ(active(0.5), std::nullopt);
    EXPECT_EQ(active(std::nextafter(1.0, 0.0)), std::nullopt);
    EXPECT_EQ(active(1), 0U);
    EXPECT_EQ(active(1.999), 0U);
    EXPECT_EQ(active(2), 2U);
    EXPECT_EQ(active(2.5), 2U);
    EXPECT_EQ(active(3), 3U);
    EXPECT_EQ(active(500), 3U);
    EXPECT_EQ(active(infinity), 3U);
    EXPECT_EQ(active(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
}

TEST(LyricsStoreNextTime, IsThatOfTheFirstLineStillToCome) {
    Store store;
    EXPECT_EQ(store.lyrics->nextTime(0), std::nullopt) << "no lyrics";
    store.loadAnswered(track("A"), synced(R"([00:01.00]a\n[00:02.00]b\n[00:02.00]c\n[00:03.00]d)"));
    const auto next = [&](double seconds) { return store.lyrics->nextTime(seconds); };
    EXPECT_EQ(next(-infinity), 1);
    EXPECT_EQ(next(0.5), 1);
    EXPECT_EQ(next(1), 2);
    EXPECT_EQ(next(1.999), 2);
    EXPECT_EQ(next(2), 3);
    EXPECT_EQ(next(3), std::nullopt) << "after the last";
    EXPECT_EQ(next(infinity), std::nullopt);
}

TEST(LyricsStoreActiveIndex, OfASingleLine) {
    Store store;
    store.loadAnswered(track("A"), synced("[00:00.00]a"));
    EXPECT_EQ(store.lyrics->activeIndex(-0.001), std::nullopt);
    EXPECT_EQ(store.lyrics->activeIndex(0), 0U);
}

TEST(LyricsStoreActiveIndex, AgreesWithAScanFromTheFront) {
    std::mt19937 random(7);
    for (unsigned count = 1; count < 40; ++count) {
        std::string lrc;
        for (unsigned i = 0; i < count; ++i)
            lrc += "[00:" + std::to_string(10 + random() % 30) + "]x";
        Store store;
        store.loadAnswered(track("A"), synced(lrc));
        const auto& lines = store.lyrics->lines();
        ASSERT_EQ(lines.size(), count);
        for (double seconds = 9.5; seconds < 41; seconds += 0.5) {
            std::optional<std::size_t> expected;
            for (std::size_t i = 0; i < lines.size() && lines[i].time <= seconds; ++i)
                expected = i;
            ASSERT_EQ(store.lyrics->activeIndex(seconds), expected) << seconds << " of " << lrc;
        }
    }
}

TEST(LyricsStoreActiveIndex, IsFoundAmongAMillionLinesAHundredThousandTimes) {
    constexpr std::size_t count = 1'000'000;
    std::string lrc;
    for (std::size_t i = 0; i < count; ++i)
        lrc += "[0:0]";
    Store store;
    store.loadAnswered(track("A"), synced(lrc));
    ASSERT_EQ(store.lyrics->lines().size(), count);
    for (int i = 0; i < 50'000; ++i) { // with a scan from either end this would take minutes
        ASSERT_EQ(store.lyrics->activeIndex(-1), std::nullopt);
        ASSERT_EQ(store.lyrics->activeIndex(0), count - 1);
    }
}

TEST(LyricsStoreActiveIndex, IsAbsentInEveryStateWithoutLines) {
    Store store;
    const auto expectNone = [&](Case which) {
        EXPECT_EQ(store.which(), which);
        EXPECT_TRUE(store.lyrics->lines().empty());
        EXPECT_EQ(store.lyrics->activeIndex(10), std::nullopt);
    };
    store.loadAnswered(track("A"), synced("[00:01.00]a"));
    ASSERT_EQ(store.lyrics->activeIndex(10), 0U);
    store.load(track("B"));
    expectNone(Case::loading);
    store.machine.http.answer(1, plainWords("words"));
    expectNone(Case::plain);
    store.loadAnswered(track("C"), HttpResponse{404, ""});
    expectNone(Case::notFound);
    store.loadAnswered(track("D"), TransportError{"no route"});
    expectNone(Case::failed);
    store.lyrics->clear();
    expectNone(Case::idle);
}

} // namespace
} // namespace brellowind
