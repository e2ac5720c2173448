// SPDX-License-Identifier: MIT

#include "views/Painting.h"
#include "views/drawing/LyricText.h"
#include "views/pill/Stage.h"

#include <QImage>
#include <chrono>
#include <string>
#include <vector>

namespace brellowind {
namespace {

using namespace std::chrono_literals;

/// A line of which only the first letter is visible at the beginning, and only the last one at the
/// end.
std::string wideLine() {
    return 'H' + std::string(400, ' ') + 'H';
}

class PillGlide : public test::Stage {
protected:
    /// Plays a song whose second line is `life` seconds after the first.
    void sing(const std::string& line, int life) {
        machine.spotify.plays = true;
        machine.spotify.position = 10;
        machine.appearAnswered(
            test::synced("[00:10.00]" + line + "\\n[00:" + std::to_string(10 + life) + ".00]b"));
    }

    void pass(double seconds) {
        for (int i = 0; i < 30 * seconds; ++i)
            step(1.0 / 30);
    }

    /// The amount of ink of `text` within its room.
    double inkAtEnd(const char* text) {
        auto* line = dynamic_cast<LyricText*>(item(text));
        const QSize size = line->size().toSize();
        const QImage look = test::painted(*line, size);
        return test::ink(look.copy(size.width() - 12, 0, 12, size.height()));
    }
};

TEST_F(PillGlide, ShowsTheEndOfALineBeforeTheNextOneComes) {
    sing(wideLine(), 5);
    pass(2);
    EXPECT_EQ(inkAtEnd("lyricLine"), 0);
    pass(2.5);
    EXPECT_GT(inkAtEnd("lyricLine"), 5);
}

TEST_F(PillGlide, TakesItsTimeForALineThatStays) {
    sing(wideLine(), 45);
    pass(6);
    EXPECT_EQ(inkAtEnd("lyricLine"), 0);
    pass(39);
    EXPECT_GT(inkAtEnd("lyricLine"), 5);
}

TEST_F(PillGlide, StandsWhileThePlayerIsPaused) {
    sing(wideLine(), 5);
    machine.movePointer(test::View::overThePill); // the pill keeps its line
    pass(2);
    machine.pause();
    const auto lineLook = [this] {
        auto* line = item("lyricLine");
        return test::painted(*line, line->size().toSize());
    };
    const QImage before = lineLook();
    pass(20);
    EXPECT_EQ(lineLook(), before);
    EXPECT_EQ(inkAtEnd("lyricLine"), 0);
    machine.spotify.plays = true;
    machine.advance(1s);
    pass(4);
    EXPECT_GT(inkAtEnd("lyricLine"), 5);
}

TEST_F(PillGlide, OfATitleDoesNotWaitForThePlayer) {
    machine.spotify.title = wideLine();
    machine.appearAnswered(platform::HttpResponse{404, ""});
    pass(60);
    EXPECT_GT(inkAtEnd("lyricLine"), 5);
}

TEST_F(PillGlide, MovesTheLineOfThePanelInTheTimeThatIsLeft) {
    sing(wideLine(), 8);
    pass(1);
    machine.spotify.position = 13;
    machine.advance(1s);
    machine.view.tapCover();
    pass(2);
    EXPECT_EQ(item("panelLine")->width(), 320);
    EXPECT_EQ(inkAtEnd("panelLine"), 0);
    pass(2.5);
    EXPECT_GT(inkAtEnd("panelLine"), 5);
}

TEST_F(PillGlide, MovesTitleAndArtistInThePanel) {
    machine.spotify.title = wideLine();
    machine.spotify.artist = wideLine();
    machine.appearAnswered(platform::HttpResponse{404, ""});
    machine.view.tapCover();
    step(0);
    step(0.5);
    auto* caption = below(artwork(), "ArtworkCaption");
    ASSERT_NE(caption, nullptr);
    ASSERT_EQ(caption->childItems().size(), 2U);
    const auto looks = [&] {
        std::vector<QImage> all;
        for (auto* text : caption->childItems())
            all.push_back(test::painted(*text, text->size().toSize()));
        return all;
    };
    const auto beginning = looks();
    for (auto* text : caption->childItems()) {
        EXPECT_EQ(text->width(), 288);
        EXPECT_EQ(text->x(), 16);
    }
    pass(60);
    const auto end = looks();
    pass(10);
    EXPECT_EQ(looks(), end) << "they rest at their ends";
    for (std::size_t i = 0; i < 2; ++i) {
        const auto inkAt = [](const QImage& look, int x) {
            return test::ink(look.copy(x, 0, 12, look.height()));
        };
        EXPECT_GT(inkAt(beginning[i], 0), 3);
        EXPECT_EQ(inkAt(beginning[i], 276), 0);
        EXPECT_EQ(inkAt(end[i], 0), 0);
        EXPECT_GT(inkAt(end[i], 276), 3);
    }
}

TEST_F(PillGlide, PutsATitleFromRightToLeftAtTheRight) {
    machine.spotify.title = "שלום";
    machine.appearAnswered(platform::HttpResponse{404, ""});
    machine.view.tapCover();
    settle();
    const auto& texts = below(artwork(), "ArtworkCaption")->childItems();
    EXPECT_EQ(texts[0]->x(), 16);
    EXPECT_EQ(texts[1]->x() + texts[1]->width(), 320 - 16);
}

} // namespace
} // namespace brellowind
