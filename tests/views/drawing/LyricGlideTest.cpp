// SPDX-License-Identifier: MIT

#include "views/Painting.h"
#include "views/SteppedFrames.h"
#include "views/drawing/LyricText.h"
#include "views/scene/SceneWindow.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <utility>

namespace brellowind {
namespace {

constexpr QSize around(400, 60);
constexpr int room = 120;
constexpr int left = 140; ///< of the room in the window
constexpr int right = left + room;
constexpr int middle = left + room / 2;
constexpr int top = 20;
constexpr double frame = 1.0 / 30;

/// A text with bars at its ends and a dot in the middle.
const QString wide = u'H' + QString(60, u' ') + u'.' + QString(60, u' ') + u'H';
const QString narrow = QStringLiteral("HHHHH");
const QString wideHebrew = u'\u05E9' + QString(60, u' ') + u'\u05E9';

QFont lyricFont() {
    QFont font;
    font.setPixelSize(13);
    return font;
}

class LyricGlide : public testing::Test {
protected:
    LyricGlide() { window.resize(around); }

    void show(const QString& text, std::optional<double> life = {}) {
        line.emplace(LyricText::Style{lyricFont(), Qt::white, room}, text, true, frames,
                     &window.root());
        line->glideWithin([life] { return life; });
        line->setPosition({left, top});
    }

    void pass(double seconds) {
        for (double passed = 0; passed < seconds; passed += frame)
            frames.step(frame);
    }

    QImage look() {
        return test::painted(around, [this](QPainter& painter) {
            painter.translate(left + (room - line->width()) / 2, top);
            line->paint(painter);
        });
    }

    /// The amount of ink between two columns of the window.
    double ink(int from, int to) { return test::ink(look().copy(from, 0, to - from, 60)); }

    double inkAtLeft() { return ink(left, left + 12); }
    double inkAtRight() { return ink(right - 12, right); }

    SceneWindow window;
    test::SteppedFrames frames;
    std::optional<LyricText> line;
};

TEST_F(LyricGlide, IsNotForATextThatFitsItsRoom) {
    show(narrow);
    const QImage before = look();
    EXPECT_EQ(line->width(), std::ceil(line->naturalWidth()));
    pass(5);
    EXPECT_EQ(look(), before);
}

TEST_F(LyricGlide, TakesNoMoreThanTheRoom) {
    show(QString(80, u'H'));
    EXPECT_GT(line->naturalWidth(), 200);
    EXPECT_EQ(line->width(), room);
    for (int i = 0; i < 100; ++i) {
        const QRect drawn = test::inkRect(look());
        EXPECT_GE(drawn.left(), left - LyricText::fadeOverhang);
        EXPECT_LE(drawn.right(), right + LyricText::fadeOverhang);
        EXPECT_EQ(line->paintedRect().left(), -LyricText::fadeOverhang) << "nor is more drawn anew";
        EXPECT_EQ(line->paintedRect().right(), room + LyricText::fadeOverhang);
        pass(0.1);
    }
}

TEST_F(LyricGlide, BeginsAtTheBeginningOfTheTextAndRestsAtItsEnd) {
    show(wide);
    const double letter = inkAtLeft();
    EXPECT_GT(letter, 10);
    EXPECT_EQ(inkAtRight(), 0);
    pass(1);
    EXPECT_EQ(inkAtLeft(), letter) << "it stands for a moment";
    pass(20);
    EXPECT_EQ(inkAtLeft(), 0);
    EXPECT_NEAR(inkAtRight(), letter, 0.1 * letter);
    const QImage end = look();
    pass(20);
    EXPECT_EQ(look(), end);
}

TEST_F(LyricGlide, ShowsTheMiddleOfTheTextOnItsWay) {
    show(wide);
    bool seen = false;
    for (int i = 0; i < 300 && !seen; ++i) {
        pass(frame);
        seen = inkAtLeft() == 0 && inkAtRight() == 0 && ink(middle - 5, middle + 5) > 0;
    }
    EXPECT_TRUE(seen);
}

TEST_F(LyricGlide, OfATextFromRightToLeftGoesTheOtherWay) {
    show(wideHebrew);
    ASSERT_GT(line->naturalWidth(), room + 20);
    const double letter = inkAtRight();
    EXPECT_GT(letter, 10);
    EXPECT_EQ(inkAtLeft(), 0);
    pass(20);
    EXPECT_EQ(inkAtRight(), 0);
    EXPECT_NEAR(inkAtLeft(), letter, 0.1 * letter);
}

TEST_F(LyricGlide, FadesTheTextWhereItIsCutAndNowhereElse) {
    show(QString(80, u'H'));
    const auto faded = [&] {
        return std::pair(ink(left - 7, left + 5), ink(right - 5, right + 7));
    };
    const double full = ink(middle - 6, middle + 6);
    EXPECT_LT(faded().second, 0.5 * full);
    EXPECT_GT(faded().second, 0.05 * full);
    EXPECT_GT(ink(left, left + 12), 0.8 * full) << "the first letter is whole";
    pass(2.5);
    EXPECT_LT(faded().first, 0.5 * full);
    EXPECT_LT(faded().second, 0.5 * full);
    pass(60);
    EXPECT_LT(faded().first, 0.5 * full);
    EXPECT_GT(ink(right - 12, right), 0.8 * full) << "and the last";
}

TEST_F(LyricGlide, HasShownTheEndWhenTheNextTextComes) {
    for (const double life : {1.0, 3.0, 5.0}) {
        show(wide, life);
        pass(life + frame);
        EXPECT_GT(inkAtRight(), 10) << life;
    }
    show(wide, 60);
    pass(2);
    EXPECT_EQ(inkAtRight(), 0) << "it does not hurry";
}

TEST_F(LyricGlide, StandsWhileItIsHeldAndThenGoesOn) {
    show(wide);
    pass(1.6);
    const QImage before = look();
    line->setHeld(true);
    pass(20);
    EXPECT_EQ(look(), before);
    line->setHeld(false);
    frames.step(frame);
    EXPECT_EQ(inkAtRight(), 0) << "from where it stood";
    pass(20);
    EXPECT_GT(inkAtRight(), 10);
}

TEST_F(LyricGlide, BeginsAnewWhenTheTextComesToBeSeenAgain) {
    show(wide);
    const QImage beginning = look();
    const std::pair<std::function<void()>, std::function<void()>> ways[] = {
        {[&] { line->setVisible(false); }, [&] { line->setVisible(true); }},
        {[&] { line->setPresent(false); }, [&] { line->setPresent(true); }},
        {[&] { line->setText(narrow); }, [&] { line->setText(wide); }},
    };
    for (const auto& [leave, come] : ways) {
        pass(20);
        ASSERT_NE(look(), beginning);
        leave();
        pass(5);
        come();
        pass(1);
        EXPECT_EQ(look(), beginning);
    }
}

TEST_F(LyricGlide, LeavesFromWhereItRests) {
    show(wide);
    pass(20);
    const QImage before = look();
    line->setText(narrow);
    frames.step(0);
    const QImage after = test::painted(around, [this](QPainter& painter) {
        painter.translate(middle - line->width() / 2, top);
        line->paint(painter);
    });
    EXPECT_LE(test::largestDifference(after, before), 8);
}

TEST_F(LyricGlide, OfAnEndlessTextDrawsOnlyWhatIsSeen) {
    show(QString(4096, u'H'));
    pass(3);
    test::ImageRecorder screen({640, 540});
    QPainter painter(&screen);
    painter.translate(left, top);
    line->paint(painter);
    painter.end();
    EXPECT_GT(screen.largestImage(), room * 10);
    EXPECT_LT(screen.largestImage(), (room + 20) * 40);
}

} // namespace
} // namespace brellowind
