// SPDX-License-Identifier: MIT

#include "views/drawing/LyricText.h"
#include "views/Painting.h"
#include "views/SteppedFrames.h"
#include "views/scene/SceneWindow.h"

#include <QFontMetricsF>
#include <cmath>
#include <gtest/gtest.h>

namespace brellowind {
namespace {

constexpr QSize room(400, 80);

QFont lyricFont() {
    QFont font;
    font.setPixelSize(13);
    return font;
}

struct Room {
    Room() { around.resize(room); }

    SceneWindow around;
};

/// A line in the middle of a window.
class Line : private Room, public LyricText {
public:
    Line(FrameDriver& frames, const QString& text, bool present = true)
        : LyricText({lyricFont(), Qt::white}, text, present, frames, &around.root()) {}

    QImage look(double ratio = 1) {
        setPosition({room.width() / 2.0 - width() / 2, 30});
        return test::painted(*this, room, position(), ratio);
    }
};

class LyricTextTest : public testing::Test {
protected:
    void settle() {
        driver.step(0);
        driver.step(10);
    }

    test::SteppedFrames driver;
};

const QString one = QStringLiteral("HHHHH");
const QString two = QStringLiteral("IIIIIIIII");

TEST_F(LyricTextTest, ShowsItsFirstTextAtOnce) {
    Line line(driver, one);
    EXPECT_FALSE(test::inkRect(line.look()).isEmpty());
    const QImage before = line.look();
    settle();
    EXPECT_EQ(line.look(), before);
}

TEST_F(LyricTextTest, TakesTheSizeOfItsText) {
    const Line line(driver, one);
    EXPECT_NEAR(line.naturalWidth(), QFontMetricsF(lyricFont()).horizontalAdvance(one), 1);
    EXPECT_EQ(line.width(), std::ceil(line.naturalWidth()));
    EXPECT_EQ(line.height(), std::ceil(QFontMetricsF(lyricFont()).height()));
}

TEST_F(LyricTextTest, HasAsManyPointsOfHeightWithoutText) {
    const Line line(driver, (QString()));
    EXPECT_EQ(line.naturalWidth(), 0);
    EXPECT_EQ(line.height(), Line(driver, one).height());
}

TEST_F(LyricTextTest, TakesTheWidthOfANewTextAtOnce) {
    Line line(driver, one);
    const double before = line.naturalWidth();
    line.setText(one + one);
    EXPECT_NEAR(line.naturalWidth(), 2 * before, 1);
    EXPECT_EQ(line.width(), std::ceil(line.naturalWidth()));
}

TEST_F(LyricTextTest, ShowsTheOldTextInTheFrameInWhichTheNewOneComes) {
    Line line(driver, one);
    const QImage before = line.look();
    line.setText(two);
    driver.step(0);
    EXPECT_LE(test::largestDifference(line.look(), before), 2);
}

TEST_F(LyricTextTest, ShowsBothTextsWhileOneReplacesTheOther) {
    Line line(driver, one);
    Line gone(driver, one);
    Line come(driver, two, false);
    line.setText(two);
    gone.setPresent(false);
    come.setPresent(true);
    driver.step(0);
    driver.step(0.08);
    const double expected = test::ink(gone.look()) + test::ink(come.look());
    EXPECT_GT(test::ink(gone.look()), 1);
    EXPECT_GT(test::ink(come.look()), 1);
    EXPECT_NEAR(test::ink(line.look()) / expected, 1, 0.25) << "where they meet they cover";
}

TEST_F(LyricTextTest, EndsWithTheNewTextAlone) {
    Line line(driver, one);
    line.setText(two);
    settle();
    EXPECT_EQ(line.look(), Line(driver, two).look());
}

TEST_F(LyricTextTest, EndsWithTheLastOfManyTexts) {
    Line line(driver, one);
    for (int i = 0; i < 50; ++i) {
        line.setText(QString::number(i));
        driver.step(0.01);
    }
    line.setText(two);
    settle();
    driver.step(1);
    EXPECT_EQ(line.look(), Line(driver, two).look());
}

TEST_F(LyricTextTest, TurnsBackWithoutAJumpWhenALeavingTextComesAgain) {
    Line line(driver, one);
    line.setText(two);
    driver.step(0);
    driver.step(0.06);
    const QImage before = line.look();
    line.setText(one);
    driver.step(0);
    EXPECT_LE(test::largestDifference(line.look(), before), 4);
    settle();
    EXPECT_EQ(line.look(), Line(driver, one).look());
    EXPECT_EQ(line.naturalWidth(), Line(driver, one).naturalWidth());
}

TEST_F(LyricTextTest, IsNotThereWhileItIsNotPresent) {
    Line line(driver, one, false);
    EXPECT_TRUE(test::inkRect(line.look()).isEmpty());
    EXPECT_GT(line.naturalWidth(), 0);
}

TEST_F(LyricTextTest, GoesAndComesBackLikeAText) {
    Line line(driver, one);
    line.setPresent(false);
    driver.step(0);
    driver.step(0.06);
    const double midway = test::ink(line.look());
    EXPECT_GT(midway, 0);
    EXPECT_LT(midway, test::ink(Line(driver, one).look()));
    settle();
    EXPECT_TRUE(test::inkRect(line.look()).isEmpty());
    line.setPresent(true);
    settle();
    EXPECT_EQ(line.look(), Line(driver, one).look());
}

TEST_F(LyricTextTest, ChangesItsTextUnseenWhileItIsNotPresent) {
    Line line(driver, one, false);
    line.setText(two);
    driver.step(0);
    driver.step(0.06);
    EXPECT_TRUE(test::inkRect(line.look()).isEmpty());
    line.setText(one);
    settle();
    EXPECT_TRUE(test::inkRect(line.look()).isEmpty());
    line.setText(two);
    line.setPresent(true);
    settle();
    EXPECT_EQ(line.look(), Line(driver, two).look());
}

TEST_F(LyricTextTest, PaintsWithinTheRectangleThatItNames) {
    Line line(driver, one);
    line.setText(one + one + one);
    driver.step(0);
    for (int i = 0; i < 20; ++i) {
        driver.step(0.02);
        const QRect drawn = test::inkRect(line.look());
        EXPECT_TRUE(line.paintedRect().translated(line.position()).toAlignedRect().contains(drawn));
    }
}

TEST_F(LyricTextTest, MayGoWhileItsTextChanges) {
    {
        Line line(driver, one);
        line.setText(two);
        driver.step(0);
    }
    driver.step(0.1);
}

TEST_F(LyricTextTest, DrawsAllAtTheScaleOfTheScreen) {
    Line line(driver, one);
    const QImage twice = line.look(2);
    const QRect large = test::inkRect(twice);
    const QRect small = test::inkRect(line.look());
    EXPECT_NEAR(large.width(), 2 * small.width(), 3);
    EXPECT_NEAR(large.height(), 2 * small.height(), 3);
}

} // namespace
} // namespace brellowind
