// SPDX-License-Identifier: MIT

#include "views/RootViewFixture.h"

#include <gtest/gtest.h>

namespace brellowind {
namespace {

using namespace std::chrono_literals;
using platform::HttpResponse;
using platform::TransportError;
using test::View;

/// A view whose songs have covers at "https://covers.example/", followed by the title.
class NotchRootViewArtwork : public testing::Test {
protected:
    NotchRootViewArtwork() {
        view.spotify.artwork = cover("Song");
        view.appear();
    }

    static std::string cover(const std::string& title) { return "https://covers.example/" + title; }

    /// Starts the next song, with a cover at `artwork`.
    void play(const std::string& title, const std::string& artwork) {
        view.spotify.playSong(title);
        view.spotify.artwork = artwork;
        view.advance(1s);
    }

    void play(const std::string& title) { play(title, cover(title)); }

    /// The requests for covers, among those for lyrics.
    std::vector<std::size_t> fetches() const {
        std::vector<std::size_t> indices;
        for (std::size_t i = 0; i < view.requests(); ++i)
            if (!view.machine.http.requests[i]->request.url.starts_with("https://lyrics.example"))
                indices.push_back(i);
        return indices;
    }

    const platform::HttpRequest& fetch(std::size_t index) const {
        return view.machine.http.requests.at(fetches().at(index))->request;
    }

    /// Completes the `index`-th fetch of a cover.
    void answer(std::size_t index, platform::HttpResult result) {
        view.machine.http.answer(fetches().at(index), std::move(result));
        view.runTurns();
    }

    /// The bytes of the shown cover; empty if there is none.
    std::string shown() const {
        const auto& image = view.view.artwork().image.get();
        return image ? dynamic_cast<const test::FakeImage&>(*image).bytes : std::string();
    }

    View view;
};

TEST_F(NotchRootViewArtwork, IsFetchedFromWhereTheTrackSays) {
    ASSERT_EQ(fetches().size(), 1U);
    EXPECT_EQ(fetch(0).url, "https://covers.example/Song");
    EXPECT_EQ(shown(), "") << "until it is there";
    answer(0, HttpResponse{200, "image of Song"});
    EXPECT_EQ(shown(), "image of Song");
}

TEST_F(NotchRootViewArtwork, MayLieInALocalFile) {
    const std::string file = "file:///covers/next.png";
    view.machine.files.contents[file] = "image of Next";
    play("Next", file);
    EXPECT_EQ(shown(), "image of Next");
    EXPECT_EQ(fetches().size(), 1U) << "that of the song before";
}

TEST_F(NotchRootViewArtwork, MayLieInAFileWithAnyName) {
    view.machine.files.contents["file:///My%20covers/%C3%BC%20%23.png"] = "image of Next";
    play("Next", "file:///My covers/ü%20%23.png");
    EXPECT_EQ(shown(), "image of Next");
}

TEST_F(NotchRootViewArtwork, IsKeptWhenTheFileOfTheNextIsMissingOrTooLong) {
    answer(0, HttpResponse{200, "image of Song"});
    play("Next", "file:///covers/missing.png");
    EXPECT_EQ(shown(), "image of Song");
    std::string longFile = "image";
    longFile.resize(16 * 1024 * 1024 + 1);
    view.machine.files.contents["file:///covers/long.png"] = std::move(longFile);
    play("Last", "file:///covers/long.png");
    EXPECT_EQ(shown(), "image of Song");
}

TEST_F(NotchRootViewArtwork, IsRedrawnWhenItArrives) {
    int redraws = 0;
    const auto subscription = view.view.onRedraw([&] { ++redraws; });
    answer(0, HttpResponse{200, "image of Song"});
    EXPECT_EQ(redraws, 1);
}

TEST_F(NotchRootViewArtwork, IsFetchedOncePerSong) {
    view.advance(10s);
    view.spotify.plays = true;
    view.spotify.artwork = cover("late");
    view.advance(10s);
    EXPECT_EQ(fetches().size(), 1U);
}

TEST_F(NotchRootViewArtwork, IsFetchedAnewForEveryChangeOfTrack) {
    answer(0, HttpResponse{200, "image of Song"});
    play("Next", cover("Song"));
    EXPECT_EQ(fetches().size(), 2U) << "also of the same location";
    play("Song");
    EXPECT_EQ(fetches().size(), 3U);
    EXPECT_EQ(fetch(2).url, cover("Song"));
}

TEST_F(NotchRootViewArtwork, OfTheLastSongStaysUntilTheNextHasArrived) {
    answer(0, HttpResponse{200, "image of Song"});
    play("Next");
    EXPECT_EQ(shown(), "image of Song");
    answer(1, HttpResponse{200, "image of Next"});
    EXPECT_EQ(shown(), "image of Next");
}

TEST_F(NotchRootViewArtwork, IsClearedAtOnceWithoutAValidLocation) {
    for (const std::string artwork :
         {"", "not a location", "/covers/next.png", "https://broken cover"}) {
        play("Song");
        answer(fetches().size() - 1, HttpResponse{200, "image of Song"});
        ASSERT_EQ(shown(), "image of Song");
        const auto before = fetches().size();
        play("Next", artwork);
        EXPECT_EQ(shown(), "") << artwork;
        EXPECT_EQ(fetches().size(), before) << artwork;
    }
}

TEST_F(NotchRootViewArtwork, IsClearedWhenThePlayerQuits) {
    answer(0, HttpResponse{200, "image of Song"});
    view.spotify.quit();
    view.advance(1s);
    EXPECT_EQ(shown(), "");
}

TEST_F(NotchRootViewArtwork, IsKeptWhenTheNextCannotBeHad) {
    answer(0, HttpResponse{200, "image of Song"});
    play("Next");
    answer(1, TransportError{"no route"});
    EXPECT_EQ(shown(), "image of Song");
    EXPECT_TRUE(view.machine.log.lines.empty()) << "nobody is told";
}

TEST_F(NotchRootViewArtwork, IsKeptWhenTheNextIsNoImage) {
    answer(0, HttpResponse{200, "image of Song"});
    for (const std::string body : {"", "<html>", "imag"}) {
        play(std::to_string(fetches().size()));
        answer(fetches().size() - 1, HttpResponse{200, body});
        EXPECT_EQ(shown(), "image of Song") << body;
    }
    EXPECT_TRUE(view.machine.log.lines.empty());
}

TEST_F(NotchRootViewArtwork, IsTakenWhateverTheStatusOfItsAnswer) {
    answer(0, HttpResponse{404, "image of a record"});
    EXPECT_EQ(shown(), "image of a record");
}

TEST_F(NotchRootViewArtwork, IsTheOneThatArrivesLast) {
    play("Next");
    answer(1, HttpResponse{200, "image of Next"});
    EXPECT_EQ(shown(), "image of Next");
    answer(0, HttpResponse{200, "image of Song"});
    EXPECT_EQ(shown(), "image of Song");
}

TEST_F(NotchRootViewArtwork, ArrivesAlsoAfterThePlayerHasQuit) {
    view.spotify.quit();
    view.advance(1s);
    answer(0, HttpResponse{200, "image of Song"});
    EXPECT_EQ(shown(), "image of Song");
}

TEST_F(NotchRootViewArtwork, FetchEndsQuietlyAfterTheView) {
    const auto running = view.machine.tasks.running();
    view.root.reset();
    answer(0, HttpResponse{200, "image of Song"});
    EXPECT_EQ(view.machine.tasks.running(), running - 1);
}

} // namespace
} // namespace brellowind
