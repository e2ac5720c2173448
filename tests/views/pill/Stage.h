// SPDX-License-Identifier: MIT

#pragma once

#include "views/FakeWindowSystem.h"
#include "views/RootViewFixture.h"
#include "views/motion/FrameDriver.h"
#include "views/scene/Item.h"
#include "views/window/PillWindow.h"

#include <QTest>
#include <gtest/gtest.h>
#include <memory>

namespace brellowind::test {

/// The pill on an offscreen window, over a view on the fake machine.
class OffscreenPill : public testing::Test {
protected:
    static constexpr int windowWidth = 640;
    static constexpr int windowHeight = 540;

    explicit OffscreenPill(std::unique_ptr<FrameDriver> driver);

    /// The item of that name.
    Item* item(const char* name) const;

    /// The first item below `parent` whose type has that name.
    static Item* below(Item* parent, const char* type);

    /// The context menu; null before it is first opened.
    static SceneWindow* menu();

    Item* pill() const { return item("pill"); }
    Item* artwork() const { return item("artwork"); }
    Item* waveform() const { return item("waveform"); }
    Item* grabber() const { return item("grabber"); }

    /// The laid-out rectangle of the item in the window, without the pill's scale.
    QRectF layout(Item* laidOut) const;

    /// Converts `point` from the item to the window.
    static QPoint onWindow(Item* of, QPointF point);
    static QPoint middle(Item* of);

    /// Clicks at a point of the window.
    void click(QPoint at, Qt::MouseButton button = Qt::LeftButton);
    void click(Item* at) { click(middle(at)); }

    /// Moves the pointer to a point of the window.
    void hover(QPoint at);
    void hover(Item* over) { hover(middle(over)); }

    const NotchRootView::Form& form() const { return machine.form(); }

    View machine;
    FakeWindowSystem windowSystem{machine.machine.screens, machine.machine.pointer};
    std::unique_ptr<FrameDriver> frames;
    PillWindow window{machine.view, *frames, windowSystem};
};

/// As `OffscreenPill`, with simulated time for the animations.
class Stage : public OffscreenPill {
protected:
    Stage();

    /// Advances time until all animations are at rest.
    void settle();

    /// Starts pending animations and advances time by `seconds`.
    void step(double seconds);
};

} // namespace brellowind::test
