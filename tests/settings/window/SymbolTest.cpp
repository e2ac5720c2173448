// SPDX-License-Identifier: MIT

#include "settings/window/Symbol.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

namespace brellowind {
namespace {

const char* const names[] = {"gearshape", "info.circle", "arrow.down.circle.fill",
                             "checkmark.circle.fill", "exclamationmark.circle.fill"};

QPainterPath path(const char* name) {
    return symbolPath(QString::fromLatin1(name));
}

TEST(SymbolPath, StandsInTheMiddleOfItsBox) {
    for (const auto* name : names) {
        const QRectF bounds = path(name).boundingRect();
        EXPECT_TRUE(QRectF(0, 0, symbolBox, symbolBox).contains(bounds)) << name;
        EXPECT_NEAR(bounds.center().x(), symbolBox / 2, 0.05) << name;
        EXPECT_NEAR(bounds.center().y(), symbolBox / 2, 0.05) << name;
        EXPECT_NEAR(bounds.width(), 18, 0.7) << name;
        EXPECT_NEAR(bounds.height(), 18, 0.7) << name;
    }
}

TEST(SymbolPath, IsSymmetricalExceptTheCheckmark) {
    for (const auto* name : names) {
        const QPainterPath symbol = path(name);
        int differing = 0;
        for (double y = 0.25; y < symbolBox; y += 0.5) {
            for (double x = 0.25; x < symbolBox / 2; x += 0.5)
                differing += symbol.contains({x, y}) != symbol.contains({symbolBox - x, y});
        }
        if (QLatin1String(name) == QLatin1String("checkmark.circle.fill")) {
            EXPECT_GT(differing, 10);
        } else {
            EXPECT_LE(differing, 2) << name;
        }
    }
}

TEST(SymbolPath, FilledCirclesHaveTheirSignCutOut) {
    const std::pair<const char*, QPointF> signs[] = {
        {"arrow.down.circle.fill", {10, 12}},
        {"checkmark.circle.fill", {8.9, 13.3}},
        {"exclamationmark.circle.fill", {10, 14.1}},
    };
    for (const auto& [name, inSign] : signs) {
        EXPECT_TRUE(path(name).contains(QPointF(3, 10))) << name;
        EXPECT_FALSE(path(name).contains(inSign)) << name;
    }
}

TEST(SymbolPath, OutlinesAreOpenInside) {
    EXPECT_FALSE(path("info.circle").contains(QPointF(5, 10)));
    EXPECT_TRUE(path("info.circle").contains(QPointF(10, 12)));
    EXPECT_FALSE(path("gearshape").contains(QPointF(10, 10)));
    EXPECT_FALSE(path("gearshape").contains(QPointF(10, 5.3)));
}

TEST(SymbolPath, IsEmptyForANameThatIsNoneOfOurs) {
    EXPECT_TRUE(path("").isEmpty());
    EXPECT_TRUE(path("circle").isEmpty());
}

TEST(Symbol, FillsItsItemWithItsColour) {
    Symbol symbol;
    symbol.setProperty("name", QStringLiteral("checkmark.circle.fill"));
    symbol.setProperty("color", QColor(Qt::green));
    symbol.setSize({40, 40});
    QImage picture(40, 40, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    symbol.paint(&painter);
    EXPECT_EQ(picture.pixelColor(6, 20), QColor(Qt::green));
    EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(picture.pixelColor(18, 26).alpha(), 0) << "the checkmark's corner is clear";
}

} // namespace
} // namespace brellowind
