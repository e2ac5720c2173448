// SPDX-License-Identifier: MIT

#include "settings/window/Symbol.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

namespace brellowind {
namespace {

QPainterPath path(const char* name) {
    return symbolPath(QString::fromLatin1(name));
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
}

} // namespace
} // namespace brellowind
