// SPDX-License-Identifier: MIT

#include "platform/Track.h"

#include <gtest/gtest.h>
#include <limits>
#include <optional>

namespace brellowind {
namespace {

Track song() {
    return {"Title", "Artist", "Album", 215000, "https://covers.example/1"};
}

TEST(Track, KeepsItsFieldsUnchanged) {
    const Track track(" T|\n", "", "Ä\u0301", -1.5, "not a url");
    EXPECT_EQ(track.title, " T|\n");
    EXPECT_EQ(track.artist, "");
    EXPECT_EQ(track.album, "Ä\u0301");
    EXPECT_EQ(track.durationMs, -1.5);
    EXPECT_EQ(track.artworkURL, "not a url");
}

TEST(Track, IdJoinsTitleArtistAndAlbumWithBars) {
    EXPECT_EQ(Track("A", "B", "C", 0, std::nullopt).id(), "A|B|C");
    EXPECT_EQ(Track("", "", "", 0, std::nullopt).id(), "||");
}

TEST(Track, IdDoesNotEscapeABarInAField) {
    const Track inTitle("x|y", "z", "", 0, std::nullopt);
    const Track inArtist("x", "y|z", "", 0, std::nullopt);
    EXPECT_EQ(inTitle.id(), "x|y|z|");
    EXPECT_EQ(inTitle.id(), inArtist.id());
    EXPECT_NE(inTitle, inArtist);
}

TEST(Track, IdFollowsTheFieldsItIsMadeOf) {
    auto track = song();
    track.title = "Other";
    track.album.clear();
    EXPECT_EQ(track.id(), "Other|Artist|");
}

TEST(Track, IdIgnoresDurationAndArtworkButEqualityDoesNot) {
    auto longer = song();
    longer.durationMs += 1;
    auto bare = song();
    bare.artworkURL.reset();
    EXPECT_EQ(longer.id(), song().id());
    EXPECT_NE(longer, song());
    EXPECT_EQ(bare.id(), song().id());
    EXPECT_NE(bare, song());
}

TEST(Track, EqualityComparesEachText) {
    EXPECT_EQ(song(), song());
    auto title = song();
    title.title = "title";
    EXPECT_NE(title, song());
    auto artist = song();
    artist.artist = "artist";
    EXPECT_NE(artist, song());
    auto album = song();
    album.album = "album";
    EXPECT_NE(album, song());
    auto artwork = song();
    artwork.artworkURL = "https://covers.example/2";
    EXPECT_NE(artwork, song());
}

TEST(Track, AbsentArtworkDiffersFromEmptyArtwork) {
    auto absent = song();
    absent.artworkURL = std::nullopt;
    auto empty = song();
    empty.artworkURL = "";
    EXPECT_NE(absent, empty);
    EXPECT_EQ(absent, Track(absent));
}

TEST(Track, DurationThatIsNotANumberEqualsNothing) {
    auto track = song();
    track.durationMs = std::numeric_limits<double>::quiet_NaN();
    const Track copy(track);
    EXPECT_FALSE(track == copy);
    EXPECT_TRUE(track != copy);
}

TEST(Track, AbsentTrackEqualsOnlyAnAbsentOne) {
    const std::optional<Track> absent;
    const std::optional<Track> present = song();
    EXPECT_EQ(absent, std::optional<Track>());
    EXPECT_NE(absent, present);
    EXPECT_EQ(present, std::optional<Track>(song()));
}

} // namespace
} // namespace brellowind
