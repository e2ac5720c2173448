// SPDX-License-Identifier: MIT

#include "views/drawing/TextLayer.h"
#include "views/Painting.h"
#include "views/motion/Springs.h"

#include <QFontMetricsF>
#include <QPainter>
#include <gtest/gtest.h>

namespace brellowind {
namespace {

QFont font() {
    QFont font;
    font.setPixelSize(13);
    return font;
}

double height() {
    return QFontMetricsF(font()).height();
}

TextLayer layer(const QString& text, double presence = 1) {
    return {text, font(), presence};
}

constexpr QSize room(400, 80);

/// Draws `layer` in the middle of a transparent image.
QImage paintedLayer(TextLayer& layer) {
    return test::painted(room, [&](QPainter& painter) {
        layer.paint(painter, Qt::white, 200, 30, 0, room.width());
    });
}

TEST(TextLayer, IsAsWideAsItsText) {
    for (const char16_t* text :
         {u"one", u"A line of a song", u"夜に駆ける", u"שלום עולם", u"नमस्ते"}) {
        const QString line = QString::fromUtf16(text);
        EXPECT_NEAR(layer(line).width(), QFontMetricsF(font()).horizontalAdvance(line), 1)
            << qPrintable(line);
        EXPECT_GT(layer(line).width(), 10);
    }
}

TEST(TextLayer, OfNoTextHasNoWidthAndDrawsNothing) {
    TextLayer empty = layer(QString());
    EXPECT_EQ(empty.width(), 0);
    EXPECT_TRUE(test::inkRect(paintedLayer(empty)).isEmpty());
}

TEST(TextLayer, DrawsItsTextAboutTheMiddle) {
    for (const char16_t* text : {u"HHHHHH", u"שששששש", u"HHH\u05E9\u05E9\u05E9"}) {
        TextLayer line = layer(QString::fromUtf16(text));
        const QRect ink = test::inkRect(paintedLayer(line));
        ASSERT_FALSE(ink.isEmpty());
        EXPECT_NEAR(QRectF(ink).center().x(), 200, 2.5) << qPrintable(line.text());
        EXPECT_NEAR(ink.width(), line.width(), 4);
        EXPECT_GE(ink.top(), 30);
        EXPECT_LE(ink.bottom(), 30 + height());
    }
}

TEST(TextLayer, DrawsControlCharactersAndLineBreaksAsSpacesInOneLine) {
    for (const char16_t* text : {u"H\nH", u"H\rH", u"H\tH", u"H\u2028H", u"H\u2029H", u"H\u0085H",
                                 u"H\vH", u"H\u0001H", u"H\u007FH"}) {
        TextLayer line = layer(QString::fromUtf16(text));
        TextLayer spaced = layer(QStringLiteral("H H"));
        EXPECT_DOUBLE_EQ(line.width(), spaced.width());
        EXPECT_EQ(paintedLayer(line), paintedLayer(spaced));
        EXPECT_EQ(line.text(), QString::fromUtf16(text)) << "it still goes by its own text";
    }
}

TEST(TextLayer, DrawsNotesInTheColourOfTheText) {
    TextLayer emoji = layer(QStringLiteral("🎵 la 🎶"));
    TextLayer notes = layer(QStringLiteral("♪ la ♫"));
    EXPECT_EQ(paintedLayer(emoji), paintedLayer(notes));
}

TEST(TextLayer, DrawsAnEmojiAsOneWhateverItsPresentationSelectors) {
    for (const auto& emoji : {QStringLiteral("1\uFE0F⃣"), QStringLiteral("🏳\uFE0F‍🌈")}) {
        TextLayer marked = layer(emoji);
        TextLayer plain = layer(QString(emoji).remove(QChar(0xFE0F)));
        EXPECT_EQ(paintedLayer(marked), paintedLayer(plain));
        EXPECT_LT(marked.width(), 1.5 * layer(QStringLiteral("🌈")).width());
    }
}

TEST(TextLayer, ComesToRestWithoutAJump) {
    for (const double ratio : {1.0, 1.25, 2.0})
        for (const char16_t* text : {u"Hamburgefons", u"夜に駆ける", u"one 🎤 two"}) {
            TextLayer line = layer(QString::fromUtf16(text), 0);
            const auto look = [&] {
                return test::painted(
                    room,
                    [&](QPainter& painter) {
                        line.paint(painter, Qt::white, 200.3, 30.4, 0, room.width());
                    },
                    ratio);
            };
            line.fadeIn(0);
            double now = 0.2; // just before the end of the fade
            QImage before;
            while (line.advance(now += 0.001)) // until it is at rest
                before = look();
            ASSERT_FALSE(before.isNull());
            EXPECT_LE(test::largestDifference(before, look()), 3) << qPrintable(line.text());
        }
}

TEST(TextLayer, RestsOnceNoSwingOfItsSpringShows) {
    const auto restOf = [](TextLayer& line) {
        double now = 0;
        while (line.advance(now))
            now += 0.001;
        return now;
    };
    TextLayer coming = layer(QStringLiteral("one"), 0);
    TextLayer going = layer(QStringLiteral("one"), 1);
    coming.fadeIn(0);
    going.fadeOut(0);
    const double rest = restOf(coming);
    EXPECT_DOUBLE_EQ(restOf(going), rest);
    EXPECT_TRUE(going.isGone());

    Spring presence(springs::morph, 0);
    presence.retarget(1, 0);
    EXPECT_LT(presence.value(rest - 0.002), 1) << "not before it is there";
    for (double later = rest; later < rest + 1; later += 0.001)
        EXPECT_GT(presence.value(later), 1 - 1.0 / 255) << later;
    EXPECT_FALSE(presence.isSettled(rest + 0.2, 1e-3)) << "though it is still swinging";
    EXPECT_FALSE(coming.advance(rest + 0.35)) << "not even while it is back on this side";
}

TEST(TextLayer, IsSharpWhereverItsMiddleFalls) {
    const auto at = [](double centre) {
        TextLayer line = layer(QStringLiteral("HHHHHH"));
        return test::painted(room, [&](QPainter& painter) {
            line.paint(painter, Qt::white, centre, 30, 0, room.width());
        });
    };
    const QImage reference = at(200);
    const QRect ink = test::inkRect(reference);
    for (const double shift : {0.2, 0.4, 0.6, 0.8}) {
        const QImage shifted = at(200 + shift);
        EXPECT_EQ(shifted.copy(test::inkRect(shifted)), reference.copy(ink)) << shift;
    }
}

TEST(TextLayer, ComesInFromNothingAndEndsAsIfItHadAlwaysBeenThere) {
    TextLayer coming = layer(QStringLiteral("HHHHHH"), 0);
    EXPECT_TRUE(test::inkRect(paintedLayer(coming)).isEmpty());
    EXPECT_TRUE(coming.isGone());
    coming.fadeIn(10);
    double last = 0;
    for (const double time : {10.03, 10.06, 10.09}) {
        EXPECT_TRUE(coming.advance(time));
        EXPECT_FALSE(coming.isGone());
        const double ink = test::ink(paintedLayer(coming));
        EXPECT_GT(ink, last);
        last = ink;
    }
    EXPECT_FALSE(coming.advance(20));
    TextLayer there = layer(QStringLiteral("HHHHHH"));
    EXPECT_EQ(paintedLayer(coming), paintedLayer(there));
}

TEST(TextLayer, IsBlurredOnItsWay) {
    TextLayer there = layer(QStringLiteral("HHHHHH"));
    TextLayer going = layer(QStringLiteral("HHHHHH"));
    going.fadeOut(10);
    going.advance(10.1);
    const QRect sharp = test::inkRect(paintedLayer(there));
    const QRect soft = test::inkRect(paintedLayer(going));
    EXPECT_LT(soft.left(), sharp.left());
    EXPECT_GT(soft.right(), sharp.right());
    const int overhang = static_cast<int>(going.overhang());
    EXPECT_TRUE(sharp.adjusted(-overhang, -overhang, overhang, overhang).contains(soft));
}

TEST(TextLayer, IsBlurredByFivePointsWhenItIsAbsent) {
    constexpr double rounding = 1;
    EXPECT_EQ(layer(QStringLiteral("HHHHHH"), 0).overhang(), 3 * 5 + rounding);
}

TEST(TextLayer, ShrinksALittleAsItGoesAndGrowsIntoPlaceAsItComes) {
    const QString ends = u'H' + QString(30, u' ') + u'H';
    // The distance between the centres of the ink in both halves, which no blur changes.
    const auto distance = [](TextLayer& line) {
        const QImage image = paintedLayer(line);
        double sums[2] = {0, 0};
        double moments[2] = {0, 0};
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                sums[x / 200] += qAlpha(image.pixel(x, y));
                moments[x / 200] += qAlpha(image.pixel(x, y)) * x;
            }
        return moments[1] / sums[1] - moments[0] / sums[0];
    };
    TextLayer there = layer(ends);
    const double whole = distance(there);
    ASSERT_GT(whole, 80);
    TextLayer going = layer(ends);
    TextLayer coming = layer(ends, 0);
    going.fadeOut(10);
    coming.fadeIn(10);
    double gone = 1;
    double come = 0;
    for (const double time : {10.06, 10.1, 10.14}) {
        going.advance(time);
        coming.advance(time);
        EXPECT_LT(distance(going) / whole, gone - 0.005);
        EXPECT_GT(distance(coming) / whole, come + 0.005);
        gone = distance(going) / whole;
        come = distance(coming) / whole;
    }
    EXPECT_GT(gone, 0.9);
    EXPECT_LT(come, 1);
}

TEST(TextLayer, WiderThanTheWindowFillsItOnItsWay) {
    TextLayer line = layer(QString(200, u'H'), 1);
    line.fadeOut(10);
    line.advance(10.2);
    const QImage image = test::painted(
        {640, 80}, [&](QPainter& painter) { line.paint(painter, Qt::white, 320, 30, 0, 640); });
    const auto columnInk = [&](int from) { return test::ink(image.copy(from, 0, 40, 80)); };
    EXPECT_NEAR(columnInk(0), columnInk(300), 0.1 * columnInk(300)) << "to the very edge";
    EXPECT_NEAR(columnInk(600), columnInk(300), 0.1 * columnInk(300));
}

TEST(TextLayer, KeepsItsColourOnItsWay) {
    const QColor colour(250, 100, 0);
    TextLayer going = layer(QStringLiteral("HHHHHH"));
    going.fadeOut(10);
    going.advance(10.1);
    const QImage look = test::painted(
        room, [&](QPainter& painter) { going.paint(painter, colour, 200, 30, 0, room.width()); });
    ASSERT_FALSE(test::inkRect(look).isEmpty());
    for (int y = 0; y < look.height(); ++y)
        for (int x = 0; x < look.width(); ++x)
            if (const QColor pixel = look.pixelColor(x, y); pixel.alpha() > 50) {
                ASSERT_NEAR(pixel.red(), colour.red(), 6);
                ASSERT_NEAR(pixel.green(), colour.green(), 6);
                ASSERT_NEAR(pixel.blue(), colour.blue(), 6);
            }
}

TEST(TextLayer, CutsNoMarkThatStandsOutOfTheLine) {
    const QString tower = QString(u'A') + QString(3, QChar(0x0302)) + QString(3, QChar(0x032D));
    TextLayer there = layer(tower);
    TextLayer going = layer(tower);
    going.fadeOut(10);
    going.advance(10.05);
    const QRect sharp = test::inkRect(paintedLayer(there));
    ASSERT_LT(sharp.top(), 30 - 2) << "the marks stand out";
    const QRect soft = test::inkRect(paintedLayer(going));
    EXPECT_LE(soft.top(), sharp.top());
    EXPECT_GE(soft.bottom(), sharp.bottom());
}

TEST(TextLayer, GoesAwayToNothing) {
    TextLayer going = layer(QStringLiteral("HHHHHH"));
    EXPECT_FALSE(going.isGone());
    going.fadeOut(10);
    EXPECT_TRUE(going.advance(10.1));
    EXPECT_FALSE(going.isGone());
    EXPECT_FALSE(going.advance(20));
    EXPECT_TRUE(going.isGone());
    EXPECT_TRUE(test::inkRect(paintedLayer(going)).isEmpty());
}

TEST(TextLayer, DrawsNoMoreThanWillBeSeenOfALineOnItsWay) {
    TextLayer line = layer(QString(100'000, u'H'), 1);
    ASSERT_GT(line.width(), 500'000);
    line.fadeOut(10);
    line.advance(10.1);
    test::ImageRecorder window({640, 540});
    QPainter painter(&window);
    line.paint(painter, Qt::white, 320, 33, 0, 640);
    painter.end();
    EXPECT_GT(window.largestImage(), 640 * 10);
    EXPECT_LT(window.largestImage(), 700 * 100);
}

TEST(TextLayer, DrawsALongTextAsItDrawsAShortOne) {
    for (const char16_t* text : {u"Hamburgefons 🎤 ", u"夜に駆ける ", u"नमस्ते ", u"שלום עולם ",
                                 u"ارفع الضوء ", u"7 שלום one "}) {
        const QString unit = QString::fromUtf16(text);
        const auto beginning = [&](qsizetype characters) {
            TextLayer line = layer(unit.repeated(characters / unit.size()));
            const double middle =
                line.isRightToLeft() ? room.width() - line.width() / 2 : line.width() / 2;
            return test::painted(room, [&](QPainter& painter) {
                line.paint(painter, Qt::white, middle, 30, 0, room.width());
            });
        };
        const QImage longer = beginning(2000);
        const QImage shorter = beginning(200);
        EXPECT_GT(test::ink(shorter), 100);
        if (unit.isRightToLeft()) // its letters have other subpixel positions
            EXPECT_NEAR(test::ink(longer) / test::ink(shorter), 1, 0.02) << qPrintable(unit);
        else
            EXPECT_LE(test::largestDifference(longer, shorter), 2) << qPrintable(unit);
    }
}

TEST(TextLayer, DrawsNoImageOutsideWhatWillBeSeen) {
    TextLayer line = layer(QStringLiteral("HHHHHH"), 1);
    line.fadeOut(10);
    line.advance(10.1);
    test::ImageRecorder window({640, 540});
    QPainter painter(&window);
    line.paint(painter, Qt::white, 2000, 33, 0, 640);
    painter.end();
    EXPECT_EQ(window.largestImage(), 0);
}

} // namespace
} // namespace brellowind
