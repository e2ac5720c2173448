// SPDX-License-Identifier: MIT

#include "views/scene/SceneWindow.h"
#include "views/Painting.h"
#include "views/scene/Block.h"
#include "views/scene/TapArea.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

namespace brellowind {
namespace {

using test::Block;

class SceneWindowTest : public testing::Test {
protected:
    SceneWindowTest() {
        window.resize(120, 80);
        window.root().setSize(window.size());
    }

    SceneWindow window;
};

TEST_F(SceneWindowTest, IsClearWithoutItems) {
    const QImage image = window.grab();
    EXPECT_TRUE(test::inkRect(image).isEmpty());
}

TEST_F(SceneWindowTest, ShowsItemsInTheirPlaces) {
    Block block(&window.root(), {10, 20, 30, 8}, Qt::red);
    const double ratio = window.devicePixelRatio();
    const QRect ink = test::inkRect(window.grab());
    EXPECT_EQ(ink, QRectF(10 * ratio, 20 * ratio, 30 * ratio, 8 * ratio).toAlignedRect());
}

TEST_F(SceneWindowTest, ShowsLaterItemsOverEarlierOnes) {
    Block below(&window.root(), {0, 0, 40, 40}, Qt::red);
    Block above(&window.root(), {0, 0, 40, 40}, Qt::blue);
    EXPECT_EQ(window.grab().pixelColor(9, 9), QColor(Qt::blue));
}

TEST_F(SceneWindowTest, FadesAllThatIsInAFadedItem) {
    Item outer(&window.root());
    Item inner(&outer);
    Block block(&inner, {0, 0, 40, 40}, Qt::red);
    outer.setOpacity(0.5);
    inner.setOpacity(0.5);
    EXPECT_NEAR(qAlpha(window.grab().pixel(9, 9)), 64, 1);
    block.setOpacity(0);
    EXPECT_TRUE(test::inkRect(window.grab()).isEmpty());
}

TEST_F(SceneWindowTest, ClipsTheChildrenButNotTheItem) {
    Block outer(&window.root(), {10, 10, 20, 20}, Qt::red);
    Item inner(&outer);
    inner.setSize({10, 10});
    inner.setClip(true);
    Block block(&inner, {0, 0, 100, 100}, Qt::blue);
    const QImage image = window.grab();
    const double ratio = window.devicePixelRatio();
    const auto at = [&](double x, double y) {
        return image.pixelColor(QPointF(x * ratio, y * ratio).toPoint());
    };
    EXPECT_EQ(at(15, 15), QColor(Qt::blue));
    EXPECT_EQ(at(25, 25), QColor(Qt::red));
    EXPECT_EQ(at(50, 50), QColor(Qt::transparent));
}

TEST_F(SceneWindowTest, AFingerTapsAndHoversNoLongerThanItTouches) {
    TapArea area(QAccessible::Button, &window.root());
    area.setSize({40, 40});
    area.acceptHover();
    int taps = 0;
    bool hovered = false;
    QObject::connect(&area, &TapArea::tapped, [&] { ++taps; });
    QObject::connect(&area, &TapArea::hoveredChanged, [&](bool inside) { hovered = inside; });
    window.show();
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    QTest::touchEvent(&window, screen.get()).press(1, {20, 20});
    EXPECT_TRUE(hovered);
    QTest::touchEvent(&window, screen.get()).release(1, {20, 20});
    EXPECT_EQ(taps, 1);
    EXPECT_FALSE(hovered);
}

TEST_F(SceneWindowTest, AMouseGoesOnHoveringWhateverItsDevice) {
    TapArea area(QAccessible::Button, &window.root());
    area.setSize({40, 40});
    area.acceptHover();
    bool hovered = false;
    QObject::connect(&area, &TapArea::hoveredChanged, [&](bool inside) { hovered = inside; });
    window.show();
    const std::unique_ptr<QPointingDevice> pad(
        QTest::createTouchDevice(QInputDevice::DeviceType::TouchPad));
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, QPointF(20, 20), QPointF(20, 20), Qt::LeftButton, Qt::NoButton,
                          Qt::NoModifier, pad.get());
        QCoreApplication::sendEvent(&window, &event);
    }
    EXPECT_TRUE(hovered);
}

} // namespace
} // namespace brellowind
