#pragma once

#include "views/FakeWindowSystem.h"
#include "views/RootViewFixture.h"
#include "views/motion/FrameDriver.h"
#include "views/scene/Item.h"
#include "views/window/NotchView.h"

#include <QTest>
#include <gtest/gtest.h>
#include <memory>

namespace brellowind::test {

/// The pill on an offscreen window, over a view on the fake machine.
class PillWindow : public testing::Test {
protected:
    static constexpr int windowWidth = 640;
    static constexpr int windowHeight = 540;

    explicit PillWindow(std::unique_ptr<FrameDriver> driver);

    /// The item of that name.
    Item* item(const char* name) const;

    /// The first item below `parent` whose type has that name.
    static Item* below(Item* parent, const char* type);

    /// The context menu; null until it was first wanted.
    static SceneWindow* menu();

    Item* pill() const { return item("pill"); }
    Item* artwork() const { return item("artwork"); }
    Item* waveform() const { return item("waveform"); }
    Item* grabber() const { return item("grabber"); }

    /// Where the item is laid out, before the pill's scale, in points of the window.
    QRectF layout(Item* laidOut) const;

    /// Where `point` of the item is on the window.
    static QPoint onWindow(Item* of, QPointF point);
    static QPoint middle(Item* of);

    /// Presses and releases at a point of the window.
    void click(QPoint at, Qt::MouseButton button = Qt::LeftButton);
    void click(Item* at) { click(middle(at)); }

    /// Moves the pointer on the window.
    void hover(QPoint at);
    void hover(Item* over) { hover(middle(over)); }

    const NotchRootView::Form& form() const { return machine.form(); }

    View machine;
    FakeWindowSystem windowSystem{machine.machine.screens, machine.machine.pointer};
    std::unique_ptr<FrameDriver> frames;
    NotchView window{machine.view, *frames, windowSystem};
};

/// The same; its motions stand still until the test moves them.
class Stage : public PillWindow {
protected:
    Stage();

    /// Lets all that moves come to rest.
    void settle();

    /// Lets what was asked for so far begin, and `seconds` pass.
    void step(double seconds);
};

} // namespace brellowind::test
