// SPDX-License-Identifier: MIT

#include "support/PrintGeometry.h"
#include "views/Painting.h"
#include "views/drawing/Glyph.h"
#include "views/drawing/LyricText.h"
#include "views/drawing/WaveformGlyph.h"
#include "views/pill/Stage.h"

#include <QAbstractEventDispatcher>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace brellowind {
namespace {

constexpr double bandHeight = 20;

bool ticks(Item& item) {
    return !QAbstractEventDispatcher::instance()->registeredTimers(&item).isEmpty();
}

class PillLayout : public test::Stage {
protected:
    double lineHeight() const { return item("lyricLine")->height(); }

    double naturalWidth() const {
        return dynamic_cast<LyricText*>(item("lyricLine"))->naturalWidth();
    }

    double pillScale() const { return pill()->transform().m11(); }

    /// Whether the pill casts a shadow.
    bool isLifted() const { return pill()->paintedRect() != pill()->boundingRect(); }

    Size pillSize() const { return {pill()->width(), pill()->height()}; }

    /// Stops playback, so that the line is short.
    void appearIdle() {
        machine.spotify.quit();
        machine.appear();
        settle();
    }

    /// The pill shows `title`.
    void appearWith(const std::string& title) {
        machine.spotify.title = title;
        machine.appearAnswered(platform::HttpResponse{404, ""});
        settle();
    }

    /// The rotation of an item within the artwork, in degrees clockwise.
    std::pair<double, double> scaleAndRotation(const Item& item) const {
        const QTransform transform = item.transform(artwork());
        return {std::hypot(transform.m11(), transform.m12()),
                std::atan2(transform.m12(), transform.m11()) * 180 / std::numbers::pi};
    }

    void liftPill() {
        machine.movePointer(test::View::overThePill);
        settle();
    }
};

TEST_F(PillLayout, OfAShortLineIsTheDefaultPill) {
    appearIdle();
    EXPECT_EQ(pillSize(), (Size{272, 5 + bandHeight + 8 + lineHeight() + 12}));
    EXPECT_EQ(layout(pill()).x(), (windowWidth - 272) / 2);
    EXPECT_EQ(layout(pill()).y(), 0);
    EXPECT_EQ(pillScale(), 1);
}

TEST_F(PillLayout, OfALineHasTheHeightOfItsFont) {
    appearIdle();
    QFont font;
    font.setPixelSize(13);
    font.setWeight(QFont::Medium);
    EXPECT_EQ(lineHeight(), std::ceil(QFontMetricsF(font).height()));
    EXPECT_EQ(layout(item("lyricLine")).y(), 5 + bandHeight + 8);
    EXPECT_NEAR(layout(item("lyricLine")).center().x(), windowWidth / 2.0, 0.5);
}

TEST_F(PillLayout, OfALongLineIsFortyPointsWiderThanIt) {
    appearWith("A line of the song that is far too long for the narrow pill");
    ASSERT_GT(naturalWidth(), 232);
    EXPECT_EQ(pillSize().width, 2 * std::ceil(naturalWidth() / 2) + 40);
    EXPECT_EQ(std::fmod(pillSize().width, 2), 0);
}

TEST_F(PillLayout, IsTheDefaultPillWhateverTheLineUntilItsWindowHasASize) {
    appearWith(std::string(100'000, 'H'));
    PillWindow sizeless(machine.view, *frames, windowSystem);
    EXPECT_EQ(sizeless.root().findChild<Item*>(QStringLiteral("pill"))->width(), 272);
}

TEST_F(PillLayout, OfALineWithoutEndStaysInTheWindowAlsoWhileItIsLiftedAndPulses) {
    appearWith(std::string(100'000, 'H'));
    ASSERT_GT(naturalWidth(), 10 * windowWidth);
    liftPill();
    machine.view.tapWaveform();
    settle();
    ASSERT_TRUE(form().playPulse);
    const QRectF seen = pill()->mapRectToScene(pill()->boundingRect());
    EXPECT_GE(seen.left(), 0);
    EXPECT_LT(seen.left(), 2) << "and takes all the room that there is";
    EXPECT_NEAR(seen.center().x(), windowWidth / 2.0, 1e-9);
    EXPECT_EQ(std::fmod(pillSize().width, 2), 0);
}

TEST_F(PillLayout, OfALineWiderThanTheWindowKeepsItsCornersAndItsBand) {
    appearWith(std::string(200, 'H'));
    EXPECT_EQ(layout(artwork()), QRectF(layout(pill()).left() + 20, 5, 19, 20));
    EXPECT_EQ(layout(waveform()), QRectF(layout(pill()).right() - 20 - 16, 7, 16, 16));
    EXPECT_EQ(layout(item("lyricLine")).left(), layout(pill()).left() + 20);
    EXPECT_EQ(layout(item("lyricLine")).right(), layout(pill()).right() - 20);
    click(waveform());
    EXPECT_TRUE(machine.view.nowPlaying().isPlaying.get()) << "it can be pressed";
    click(artwork());
    EXPECT_TRUE(form().isArtExpanded) << "as can the cover";
}

TEST_F(PillLayout, OfAWindowThatGrowsNarrowerIsNarrowerToo) {
    appearWith(std::string(200, 'H'));
    window.resize(400, windowHeight);
    QCoreApplication::processEvents();
    settle();
    EXPECT_LE(1.0918 * pillSize().width, 400);
    EXPECT_GT(1.0918 * pillSize().width, 397);
}

TEST_F(PillLayout, OfTheMinimizedPillIsTheBandAlone) {
    appearWith("A line of the song that is far too long for the narrow pill");
    machine.view.tapBackground();
    settle();
    EXPECT_EQ(pillSize(), (Size{272, 5 + bandHeight + 8}));
}

TEST_F(PillLayout, OfAHoveredPillMakesRoomForTheGrabberAndLiftsIt) {
    appearIdle();
    EXPECT_FALSE(grabber()->isVisible());
    const double before = pillSize().height;
    liftPill();
    EXPECT_EQ(pillSize(), (Size{272, before + 8 + 7}));
    EXPECT_DOUBLE_EQ(pillScale(), 1.03);
    EXPECT_TRUE(grabber()->isVisible());
    EXPECT_EQ(grabber()->opacity(), 1);
    EXPECT_EQ(layout(grabber()), QRectF(windowWidth / 2.0 - 18, before + 8 - 12, 36, 7));
    EXPECT_TRUE(isLifted());
    machine.movePointer(test::View::elsewhere);
    settle();
    EXPECT_EQ(pillSize(), (Size{272, before}));
    EXPECT_EQ(pillScale(), 1);
    EXPECT_FALSE(grabber()->isVisible());
    EXPECT_FALSE(isLifted());
}

TEST_F(PillLayout, OfAHoveredMinimizedPillIsTheBandAndTheGrabber) {
    appearIdle();
    machine.view.tapBackground();
    liftPill();
    EXPECT_EQ(pillSize(), (Size{272, 5 + bandHeight + 8 + 7 + 8}));
}

TEST_F(PillLayout, GrowsFromTheMiddleOfTheTopEdge) {
    appearIdle();
    liftPill();
    const QRectF seen = pill()->mapRectToScene(pill()->boundingRect());
    EXPECT_NEAR(seen.y(), 0, 1e-9);
    EXPECT_NEAR(seen.center().x(), windowWidth / 2.0, 1e-9);
    EXPECT_NEAR(seen.width(), 272 * 1.03, 1e-9);
}

TEST_F(PillLayout, OfAPulseIsSixHundredthsLarger) {
    machine.appear();
    machine.view.tapWaveform();
    settle();
    ASSERT_TRUE(form().playPulse);
    EXPECT_DOUBLE_EQ(pillScale(), 1.06);
    liftPill();
    EXPECT_NEAR(pillScale(), 1.0918, 1e-12);
    machine.advance(std::chrono::milliseconds(100));
    settle();
    EXPECT_DOUBLE_EQ(pillScale(), 1.03);
}

TEST_F(PillLayout, PutsThumbnailAndIndicatorAtTheEndsOfTheBand) {
    appearIdle();
    const double left = layout(pill()).left();
    const double right = layout(pill()).right();
    EXPECT_EQ(layout(artwork()), QRectF(left + 20, 5, 19, 20));
    EXPECT_EQ(layout(waveform()), QRectF(right - 20 - 16, 7, 16, 16));
}

TEST_F(PillLayout, KeepsTheBandWhenThePillIsMinimized) {
    appearIdle();
    const QRectF thumbnail = layout(artwork());
    const QRectF indicator = layout(waveform());
    machine.view.tapBackground();
    settle();
    EXPECT_EQ(layout(artwork()), thumbnail);
    EXPECT_EQ(layout(waveform()), indicator);
}

TEST_F(PillLayout, OfTheArtworkPanelHoldsTheWholeArtwork) {
    appearIdle();
    machine.view.tapCover();
    settle();
    auto* line = item("panelLine");
    const double height = 6 + bandHeight + 10 + 320 + 10 + line->height() + 10 + 7 + 10;
    EXPECT_EQ(pillSize(), (Size{352, height}));
    const double left = (windowWidth - 352) / 2.0;
    EXPECT_EQ(layout(pill()).x(), left);
    EXPECT_EQ(layout(artwork()), QRectF(left + 16, 36, 320, 320));
    EXPECT_EQ(layout(waveform()), QRectF(left + 352 - 16 - 16, 8, 16, 16));
    EXPECT_EQ(layout(line).y(), 6 + bandHeight + 10 + 320 + 10);
    EXPECT_EQ(layout(grabber()), QRectF(windowWidth / 2.0 - 18, height - 10 - 7, 36, 7));
    EXPECT_TRUE(grabber()->isVisible()) << "also while the pointer is elsewhere";
    EXPECT_FALSE(item("lyricLine")->isVisible());
}

TEST_F(PillLayout, OfTheArtworkPanelIsTheSameForEveryLineAndWhileMinimized) {
    appearWith("A line of the song that is far too long for the narrow pill");
    machine.view.tapCover();
    settle();
    const Size before = pillSize();
    EXPECT_EQ(before.width, 352);
    machine.view.tapBackground(); // as a pause does
    settle();
    ASSERT_TRUE(form().isMinimized && form().isArtExpanded);
    EXPECT_EQ(pillSize(), before);
    EXPECT_EQ(layout(artwork()).height(), 320);
    machine.view.tapArtwork();
    settle();
    EXPECT_EQ(pillSize(), (Size{272, 33}));
}

TEST_F(PillLayout, FadesTheLineOutInTwoFifthsOfTheWayToThePanel) {
    appearWith("A line of the song");
    settle();
    const double small = layout(artwork()).height();
    machine.view.tapCover();
    int begun = 0;
    for (int frame = 0; frame < 60; ++frame) {
        step(1.0 / 60);
        const double expanded = (layout(artwork()).height() - small) / (320 - small);
        begun += expanded > 0 && expanded < 0.4;
        if (std::abs(expanded - 0.4) > 0.02) {
            EXPECT_EQ(item("lyricLine")->isVisible(), expanded < 0.4) << expanded;
        }
    }
    EXPECT_GT(begun, 2);
}

TEST_F(PillLayout, WritesTheLineInWhiteOfNinetySixPercent) {
    appearWith("HHH");
    settle();
    Item& line = *item("lyricLine");
    const QImage image = test::painted(line, line.size().toSize(), {}, 4);
    int brightest = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).alpha() == 255)
                brightest = std::max(brightest, image.pixelColor(x, y).green());
    EXPECT_EQ(brightest, 245);
}

TEST_F(PillLayout, RoundsTheThumbnailByFourAndTheArtworkByEighteen) {
    appearIdle();
    auto* image = below(artwork(), "ArtworkImage");
    ASSERT_NE(image, nullptr);
    // A quarter of a circle of radius r leaves r² (1 - π / 4) of each corner.
    const auto radius = [&] {
        const QSize size = image->size().toSize();
        const double corners =
            size.width() * size.height() - test::ink(test::painted(*image, size));
        return std::sqrt(corners / (4 - std::numbers::pi));
    };
    EXPECT_NEAR(radius(), 4, 0.2);
    machine.view.tapCover();
    settle();
    EXPECT_NEAR(radius(), 18, 0.2);
}

TEST_F(PillLayout, PopsAHoveredThumbnailOutButNeverTheArtwork) {
    appearIdle();
    auto* image = below(artwork(), "ArtworkImage");
    machine.view.hoverCover(true);
    settle();
    const auto [scale, degrees] = scaleAndRotation(*image);
    EXPECT_NEAR(scale, 1.18, 1e-9);
    EXPECT_NEAR(degrees, -6, 1e-9);
    machine.view.tapCover();
    settle();
    EXPECT_EQ(scaleAndRotation(*image), std::pair(1.0, 0.0));
    machine.view.hoverCover(false);
    machine.view.hoverCover(true);
    settle();
    EXPECT_EQ(scaleAndRotation(*image), std::pair(1.0, 0.0));
}

TEST_F(PillLayout, ShowsTheCaptionInThePanelAlone) {
    appearWith("Title of the song");
    EXPECT_EQ(below(artwork(), "ArtworkCaption"), nullptr);
    machine.view.tapCover();
    settle();
    auto* caption = below(artwork(), "ArtworkCaption");
    ASSERT_NE(caption, nullptr);
    EXPECT_TRUE(caption->isVisible());
    EXPECT_EQ(caption->opacity(), 1);
    EXPECT_EQ(layout(caption).bottom(), layout(artwork()).bottom());
    EXPECT_EQ(caption->width(), 320);
    machine.view.tapArtwork();
    settle();
    EXPECT_EQ(below(artwork(), "ArtworkCaption"), nullptr);
    machine.view.tapCover();
    settle();
    EXPECT_NE(below(artwork(), "ArtworkCaption"), nullptr);
}

TEST_F(PillLayout, FadesTheCaptionInOnTheSecondHalfOfTheWayToThePanel) {
    appearWith("Title of the song");
    settle();
    const double small = layout(artwork()).height();
    machine.view.tapCover();
    int fading = 0;
    for (int frame = 0; frame < 60; ++frame) {
        step(1.0 / 60);
        const double expanded = (layout(artwork()).height() - small) / (320 - small);
        const auto* caption = below(artwork(), "ArtworkCaption");
        const double seen = caption ? caption->opacity() : 0;
        EXPECT_NEAR(seen, std::clamp(2 * expanded - 1, 0.0, 1.0), 1e-6);
        fading += seen > 0 && seen < 1;
    }
    EXPECT_GT(fading, 2);
}

TEST_F(PillLayout, NeverShowsTheCaptionOnATiltedCover) {
    appearWith("Title of the song");
    machine.view.hoverCover(true);
    settle();
    machine.view.tapCover();
    step(0);
    for (int frame = 0; frame < 40; ++frame) {
        step(0.016);
        const auto degrees = scaleAndRotation(*below(artwork(), "ArtworkImage")).second;
        const auto* caption = below(artwork(), "ArtworkCaption");
        const double seen = caption ? caption->opacity() : 0;
        EXPECT_TRUE(seen == 0 || std::abs(degrees) < 0.6) << frame << ": " << degrees;
    }
    settle();
    EXPECT_EQ(below(artwork(), "ArtworkCaption")->opacity(), 1);
}

TEST_F(PillLayout, KeepsThePanelsLineBetweenArtworkAndGrabberWhereverItIsSeen) {
    appearIdle();
    for (const bool minimized : {false, true}) {
        if (minimized)
            machine.view.tapBackground();
        settle();
        int seen = 0;
        for (const bool opens : {true, false}) {
            opens ? machine.view.tapCover() : machine.view.tapArtwork();
            if (opens && minimized)
                machine.view.tapBackground(); // as a pause does
            step(0);
            for (int frame = 0; frame < 60; ++frame) {
                step(0.008);
                auto* line = window.root().findChild<Item*>(QStringLiteral("panelLine"));
                if (!line || !line->isVisible())
                    continue;
                ++seen;
                const QRectF at = layout(line);
                EXPECT_GE(at.top(), layout(artwork()).bottom()) << opens << ", " << frame;
                EXPECT_LE(at.bottom(), layout(grabber()).top()) << opens << ", " << frame;
                EXPECT_LE(at.bottom(), layout(pill()).bottom()) << opens << ", " << frame;
            }
        }
        EXPECT_GT(seen, 20) << "it is seen at all";
    }
}

TEST_F(PillLayout, ShowsTheIndicatorAsThePlayerStands) {
    machine.appear();
    settle();
    auto* glyph = below(waveform(), "WaveformGlyph");
    auto* button = below(waveform(), "Glyph");
    ASSERT_TRUE(glyph && button);
    EXPECT_DOUBLE_EQ(glyph->opacity(), 0.4);
    EXPECT_FALSE(ticks(*glyph));
    EXPECT_FALSE(button->isVisible());
    machine.resume();
    settle();
    EXPECT_DOUBLE_EQ(glyph->opacity(), 0.9);
    EXPECT_TRUE(ticks(*glyph));
}

TEST_F(PillLayout, NeverShowsAPlayingIndicatorFainterThanAPausedOne) {
    machine.appear();
    settle();
    auto* glyph = dynamic_cast<WaveformGlyph*>(below(waveform(), "WaveformGlyph"));
    const auto faintest = [&] {
        const QImage image = test::painted(*glyph, {16, 16}, {}, 4);
        int least = 255;
        for (int x = 0; x < image.width(); ++x)
            if (const int alpha = qAlpha(image.pixel(x, image.height() / 2)))
                least = std::min(least, alpha);
        return least * glyph->opacity();
    };
    const double paused = faintest();
    machine.resume();
    settle();
    for (int step = 0; step < 15; ++step) {
        glyph->setStep(step);
        EXPECT_GE(faintest(), paused) << step;
    }
}

TEST_F(PillLayout, ShowsThePlayButtonUnderThePointer) {
    machine.appear();
    machine.view.hoverWaveform(true);
    settle();
    auto* glyph = below(waveform(), "WaveformGlyph");
    auto* button = below(waveform(), "Glyph");
    EXPECT_FALSE(glyph->isVisible());
    EXPECT_DOUBLE_EQ(button->opacity(), 0.8);
    EXPECT_EQ(button->size(), QSizeF(10, 16));
    EXPECT_DOUBLE_EQ(button->x(), 3 - 0.2);
    Glyph expected;
    expected.setSize(button->size());
    const auto look = [](Item& symbol) { return test::painted(symbol, {10, 16}); };
    EXPECT_EQ(look(*button), look(expected));
    machine.view.tapWaveform();
    settle();
    expected.setKind(Glyph::PauseFill);
    EXPECT_EQ(look(*button), look(expected));
}

TEST_F(PillLayout, BrightensAHoveredGrabber) {
    machine.appear();
    liftPill();
    const auto look = [&] { return test::painted(*grabber(), {36, 7}); };
    const auto brightness = [&] { return look().pixelColor(18, 4).alphaF(); };
    EXPECT_EQ(test::inkRect(look()), QRect(0, 2, 36, 5));
    EXPECT_NEAR(brightness(), 0.15, 0.002);
    machine.view.hoverGrabber(true);
    settle();
    EXPECT_NEAR(brightness(), 0.25, 0.002);
}

TEST_F(PillLayout, IsWhatTheHoverMonitorKnowsInEveryFrameOfAMorph) {
    appearWith("A line of the song that is far too long for the narrow pill");
    const auto edgesAgree = [this] {
        const Rect hovered =
            hoverRectangle(test::View::screenFrame, {pill()->width(), pill()->height()});
        machine.movePointer({hovered.minX(), hovered.minY()});
        const bool corner = form().hovered;
        machine.movePointer({hovered.minX() - 0.01, hovered.minY()});
        const bool beside = form().hovered;
        machine.movePointer({hovered.minX(), hovered.minY() - 0.01});
        return corner && !beside && !form().hovered;
    };
    const std::function<void()> changes[] = {
        [&] { machine.view.tapBackground(); },
        [&] { machine.view.tapCover(); },
        [&] { machine.view.tapArtwork(); },
        [&] {
            machine.spotify.playSong("Short");
            machine.advance(std::chrono::seconds(1));
        },
    };
    for (const auto& change : changes) {
        change();
        step(0);
        for (int frame = 0; frame < 40; ++frame) {
            EXPECT_TRUE(edgesAgree()) << frame;
            step(0.016);
        }
        settle();
        EXPECT_TRUE(edgesAgree());
    }
}

} // namespace
} // namespace brellowind
