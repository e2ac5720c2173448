// SPDX-License-Identifier: MIT

#include "session/EventLoop.h"
#include "views/Painting.h"
#include "views/scene/Block.h"
#include "views/scene/SceneWindow.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QScreen>
#include <gtest/gtest.h>
#include <memory>
#include <random>

namespace brellowind {
namespace {

using test::Block;

/// A window on an X server, and its content on the screen.
class SceneFrames : public testing::Test {
protected:
    SceneFrames() {
        QObject::connect(&window, &SceneWindow::frameShown, [this] { ++frames; });
        window.setFlags(Qt::BypassWindowManagerHint);
        window.setGeometry({{100, 40}, size});
        show();
    }

    void show() {
        window.show();
        EXPECT_TRUE(test::waitUntil([this] { return window.isExposed(); }));
        settle();
    }

    /// Waits until all requested frames are made.
    static void settle() { test::runFor(std::chrono::milliseconds(10)); }

    QImage shown() {
        settle();
        return onScreen();
    }

    QImage onScreen() {
        QImage image = window.screen()->grabWindow(window.winId()).toImage();
        return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }

    static constexpr QSize size{120, 80};

    SceneWindow window;
    int frames = 0;
};

TEST_F(SceneFrames, MakesNoFrameWhileNothingChanges) {
    Block block(&window.root(), {10, 10, 20, 20}, Qt::red);
    settle();
    const int before = frames;
    block.setPosition({10, 10});
    block.setOpacity(1);
    block.setVisible(true);
    test::runFor(std::chrono::milliseconds(50));
    EXPECT_EQ(frames, before);
}

TEST_F(SceneFrames, MakesOneFrameOfManyChanges) {
    const int before = frames;
    Block block(&window.root(), {10, 10, 20, 20}, Qt::red);
    block.setX(20);
    block.setColor(Qt::blue);
    block.setScale(1.2);
    settle();
    EXPECT_EQ(frames, before + 1);
}

TEST_F(SceneFrames, MakesNoFrameOfWhatNobodySees) {
    Block block(&window.root(), {10, 10, 20, 20}, Qt::red);
    block.setVisible(false);
    settle();
    const auto before = frames;
    block.setColor(Qt::blue);
    block.setX(30);
    settle();
    EXPECT_EQ(frames, before);
}

TEST_F(SceneFrames, DrawsOnlyWhatLiesWhereSomethingChanged) {
    Block changed(&window.root(), {8, 8, 20, 20}, Qt::red);
    Block touched(&window.root(), {20, 8, 20, 20}, Qt::green);
    Block apart(&window.root(), {80, 48, 20, 20}, Qt::blue);
    settle();
    changed.drawn = touched.drawn = apart.drawn = 0;
    changed.setColor(Qt::yellow);
    settle();
    EXPECT_EQ(changed.drawn, 1);
    EXPECT_EQ(touched.drawn, 1);
    EXPECT_EQ(apart.drawn, 0);
}

TEST_F(SceneFrames, ClearsWhatGoes) {
    auto block = std::make_unique<Block>(&window.root(), QRectF(10, 10, 20, 20), Qt::red);
    EXPECT_FALSE(test::inkRect(shown()).isEmpty());
    block.reset();
    EXPECT_TRUE(test::inkRect(shown()).isEmpty());
}

TEST_F(SceneFrames, ShowsAllAgainAfterItWasHidden) {
    Block block(&window.root(), {10, 10, 20, 20}, Qt::red);
    settle();
    window.hide();
    block.setX(40);
    settle();
    show();
    EXPECT_EQ(shown(), window.grab());
}

TEST_F(SceneFrames, ShowsAllInAnotherSize) {
    Block block(&window.root(), {10, 10, 100, 100}, Qt::red);
    settle();
    window.resize(size * 2);
    settle();
    EXPECT_EQ(window.root().size(), QSizeF(size * 2));
    EXPECT_EQ(shown(), window.grab());
}

/// Changes random properties of random items, or adds and removes items.
class Restless {
public:
    explicit Restless(Item& root) : root_(root) {}

    void change() {
        if (blocks_.size() < 3 || pick(12) == 0) {
            add();
            return;
        }
        const auto index = static_cast<std::size_t>(pick(static_cast<int>(blocks_.size())));
        Block& block = *blocks_[index];
        switch (pick(9)) {
        case 0:
            block.setPosition({at(120), at(80)});
            break;
        case 1:
            block.setSize({at(50), at(50)});
            break;
        case 2:
            block.setColor(color());
            break;
        case 3:
            block.setOpacity(pick(5) / 4.0);
            break;
        case 4:
            block.setVisible(pick(2) == 0);
            break;
        case 5:
            block.setScale(0.5 + pick(4) / 4.0);
            break;
        case 6:
            block.setRotation(pick(360));
            break;
        case 7:
            block.setClip(pick(2) == 0);
            break;
        default:
            remove(index);
            break;
        }
    }

private:
    int pick(int count) { return std::uniform_int_distribution<>(0, count - 1)(random_); }

    /// Also beyond the window's edges and at fractional positions.
    double at(int room) { return pick(4 * room) / 2.0 - room / 2.0; }

    QColor color() { return {pick(256), pick(256), pick(256), 60 + pick(196)}; }

    void add() {
        auto* parent =
            blocks_.empty() || pick(2) == 0
                ? &root_
                : blocks_[static_cast<std::size_t>(pick(static_cast<int>(blocks_.size())))];
        blocks_.push_back(new Block(parent, {at(120), at(80), at(50), at(50)}, color()));
    }

    /// Removes an item and its children.
    void remove(std::size_t index) {
        const Block* gone = blocks_[index];
        std::erase_if(blocks_, [gone](const Block* block) {
            for (const QObject* item = block; item; item = item->parent())
                if (item == gone)
                    return true;
            return false;
        });
        delete gone;
    }

    Item& root_;
    std::vector<Block*> blocks_; ///< owned by their parents
    std::mt19937 random_{20261121};
};

TEST_F(SceneFrames, ShowsAfterEveryFrameWhatAWholeDrawingShows) {
    Restless restless(window.root());
    const bool partly = window.devicePixelRatio() != 1.37; // there every frame is complete
    for (int i = 0; i < (partly ? 300 : 20); ++i) {
        restless.change();
        restless.change();
        QCoreApplication::processEvents(); // makes the frame, and another if that asks for one
        QCoreApplication::processEvents();
        const QImage image = onScreen();
        const QImage whole = window.grab();
        ASSERT_EQ(image.size(), whole.size());
        // An antialiased edge may differ slightly where only a part of it is repainted.
        ASSERT_LE(test::largestDifference(image, whole), 16) << "after " << i << " frames";
    }
}

} // namespace
} // namespace brellowind
