#pragma once

#include "views/NotchQuickView.h"
#include "views/RootViewFixture.h"
#include "views/motion/FrameDriver.h"
#include "views/pill/Pill.h"
#include "views/pill/PillMenu.h"

#include <QQuickItem>
#include <QTest>
#include <gtest/gtest.h>

namespace brellowind::test {

/// The pill on an offscreen window, over a view on the fake machine. Its motions stand still until
/// the test moves them.
class Stage : public testing::Test {
protected:
    static constexpr int windowWidth = 640;
    static constexpr int windowHeight = 540;

    Stage();
    ~Stage() override;

    /// Lets all that moves come to rest.
    void settle();

    /// Lets what was asked for so far begin, and `seconds` pass.
    void step(double seconds);

    /// The item of that name.
    QQuickItem* item(const char* name) const;

    /// The first item below `parent` whose type has that name.
    static QQuickItem* below(QQuickItem* parent, const char* type);

    /// The context menu, once it was wanted.
    PillMenu* menu() { return window.pill().menu(); }

    QQuickItem* pill() const { return item("pill"); }
    QQuickItem* artwork() const { return item("artwork"); }
    QQuickItem* waveform() const { return item("waveform"); }
    QQuickItem* grabber() const { return item("grabber"); }

    /// Where the item is laid out, before the pill's scale, in points of the window.
    QRectF layout(QQuickItem* laidOut) const;

    /// Where `point` of the item is on the window.
    static QPoint onWindow(QQuickItem* of, QPointF point);
    static QPoint middle(QQuickItem* of);

    /// Presses and releases at a point of the window.
    void click(QPoint at, Qt::MouseButton button = Qt::LeftButton);
    void click(QQuickItem* at) { click(middle(at)); }

    /// Moves the pointer on the window.
    void hover(QPoint at);
    void hover(QQuickItem* over) { hover(middle(over)); }

    const NotchRootView::Form& form() const { return machine.form(); }

    View machine;
    NotchQuickView window{machine.root};
};

} // namespace brellowind::test
