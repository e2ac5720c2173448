// SPDX-License-Identifier: MIT

#include "views/scene/Block.h"

#include <QPointer>
#include <gtest/gtest.h>

namespace brellowind {
namespace {

using test::Block;

TEST(Item, IsVisibleWhileAllThatItLiesInIs) {
    Item outer;
    Item inner(&outer);
    EXPECT_TRUE(inner.isVisible());
    outer.setVisible(false);
    EXPECT_FALSE(inner.isVisible());
    outer.setVisible(true);
    inner.setVisible(false);
    EXPECT_FALSE(inner.isVisible());
    EXPECT_TRUE(outer.isVisible());
}

TEST(Item, IsToldWhenItsVisibilityChangesAndOnlyThen) {
    struct Listener : Item {
        using Item::Item;
        void visibilityChanged() override { told.push_back(isVisible()); }
        std::vector<bool> told;
    };
    Item outer;
    Item middle(&outer);
    Listener inner(&middle);
    outer.setVisible(false);
    EXPECT_EQ(inner.told, (std::vector<bool>{false}));
    middle.setVisible(false);
    middle.setVisible(true);
    EXPECT_EQ(inner.told.size(), 1U) << "it was invisible all along";
    outer.setVisible(true);
    outer.setVisible(true);
    EXPECT_EQ(inner.told, (std::vector<bool>{false, true}));
    middle.setVisible(false);
    EXPECT_EQ(inner.told, (std::vector<bool>{false, true, false}));
}

TEST(Item, OwnsItsChildren) {
    auto outer = std::make_unique<Item>();
    const QPointer<Item> inner = new Item(outer.get());
    const QPointer<Item> innermost = new Item(inner);
    outer.reset();
    EXPECT_TRUE(inner.isNull());
    EXPECT_TRUE(innermost.isNull());
}

TEST(Item, LeavesItsParentWhenItGoes) {
    Item outer;
    auto* first = new Item(&outer);
    auto* second = new Item(&outer);
    delete first;
    EXPECT_EQ(outer.childItems(), (std::vector<Item*>{second}));
}

TEST(Item, LiesWhereItIsPlacedInItsParent) {
    Item outer;
    outer.setPosition({100, 50});
    Item inner(&outer);
    inner.setPosition({10, 5});
    EXPECT_EQ(inner.transform().map(QPointF(1, 2)), QPointF(111, 57));
    EXPECT_EQ(inner.mapFromScene({111, 57}), QPointF(1, 2));
    EXPECT_EQ(inner.transform(&outer).map(QPointF(1, 2)), QPointF(11, 7));
    EXPECT_EQ(inner.mapRectToScene({0, 0, 4, 3}), QRectF(110, 55, 4, 3));
}

struct Origin {
    Item::TransformOrigin origin;
    QPointF stays;
};

class ItemTransform : public testing::TestWithParam<Origin> {};

TEST_P(ItemTransform, LeavesItsOriginWhereItIs) {
    Item item;
    item.setPosition({10, 20});
    item.setSize({40, 60});
    item.setTransformOrigin(GetParam().origin);
    item.setScale(2);
    item.setRotation(90);
    const QPointF stays = GetParam().stays;
    EXPECT_EQ(item.transform().map(stays), stays + item.position());
    // A clockwise rotation moves its right side to the bottom.
    EXPECT_EQ(item.transform().map(stays + QPointF(1, 0)), stays + item.position() + QPointF(0, 2));
}

INSTANTIATE_TEST_SUITE_P(Origins, ItemTransform,
                         testing::Values(Origin{Item::Centre, {20, 30}}, Origin{Item::Top, {20, 0}},
                                         Origin{Item::BottomLeft, {0, 60}}));

TEST(Item, ContainsItsRectangle) {
    Item item;
    item.setPosition({10, 20});
    item.setSize({40, 60});
    EXPECT_TRUE(item.contains({0, 0}));
    EXPECT_TRUE(item.contains({39, 59}));
    EXPECT_FALSE(item.contains({-1, 5}));
    EXPECT_FALSE(item.contains({5, 61}));
}

} // namespace
} // namespace brellowind
