// SPDX-License-Identifier: MIT

#include "platform/linux/x11/X11Popup.h"

#include "platform/linux/x11/PillOnX11.h"

#include <QKeyEvent>
#include <QShortcut>
#include <cmath>

namespace brellowind::test {
namespace {

/// A window that counts its input events.
class CountingWindow : public QRasterWindow {
public:
    int presses = 0;
    QList<int> keys;

protected:
    void mousePressEvent(QMouseEvent*) override { ++presses; }
    void keyPressEvent(QKeyEvent* event) override { keys.append(event->key()); }
};

/// A menu of 200 × 90 over the pill.
class X11Popup : public PillOnX11 {
protected:
    static constexpr QSize menuSize{200, 90};
    const QRect menuPixels{QPoint(640, 30), menuSize};

    X11Popup() { menu.resize(menuSize); }

    void popUp(Point at = {200, 30}) {
        popup.show({.window = menu, .overlay = window, .at = at, .cornerRadius = 10});
    }

    void openMenu() {
        show();
        popUp();
        ASSERT_TRUE(waitUntil([this] { return holdsPointer(); }));
    }

    /// Whether the menu has grabbed pointer and keyboard.
    bool holdsPointer() {
        return menu.isExposed() && x.isViewable(static_cast<xcb_window_t>(menu.winId()));
    }

    bool closes() {
        return waitUntil([this] { return !menu.isVisible(); });
    }

    QRect place() { return x.geometry(static_cast<xcb_window_t>(menu.winId())); }

    CountingWindow menu;
    platform::X11Popup popup;
};

TEST_F(X11Popup, IsShownWhereItIsWantedAboveTheOverlay) {
    openMenu();
    EXPECT_EQ(place(), menuPixels);
    EXPECT_TRUE(x.isAbove(static_cast<xcb_window_t>(menu.winId()), id()));
}

// Window managers warn of a parent that bypasses them.
TEST_F(X11Popup, TellsTheWindowManagerOfNoParent) {
    openMenu();
    EXPECT_TRUE(x.property(static_cast<xcb_window_t>(menu.winId()), "WM_TRANSIENT_FOR").isEmpty());
}

TEST_F(X11Popup, StaysOnTheScreen) {
    show();
    popUp({1000, 780}); // beside the overlay
    ASSERT_TRUE(waitUntil([this] { return holdsPointer(); }));
    EXPECT_EQ(place(), QRect(QPoint(1280 - 200, 800 - 90), menuSize));
}

TEST_F(X11Popup, HasPressesOnIt) {
    openMenu();
    person.pressAt(menuPixels.center());
    EXPECT_TRUE(waitUntil([this] { return menu.presses == 1; }));
    EXPECT_TRUE(menu.isVisible());
}

TEST_F(X11Popup, ClosesOnAPressOnTheOverlayWhichDoesNothingElse) {
    openMenu();
    person.pressAt({560, 30});
    EXPECT_TRUE(closes());
    runFor(std::chrono::milliseconds(50));
    EXPECT_EQ(window.presses, 0);
    person.pressAt({560, 30});
    EXPECT_TRUE(waitUntil([this] { return window.presses == 1; })) << "the pointer is free again";
}

TEST_F(X11Popup, ClosesOnAPressOnAnotherProgramWhichDoesNothingElse) {
    openMenu();
    PlainWindow other(display, {0, 500, 400, 200}, PlainWindow::Kind::unmanaged);
    person.pressAt({100, 600});
    EXPECT_TRUE(closes());
    EXPECT_EQ(other.presses(), 0);
    person.pressAt({100, 600});
    EXPECT_TRUE(waitUntil([&] { return other.presses() == 1; }));
}

TEST_F(X11Popup, HasTheKeysThatWouldGoToAnotherWindowOfTheProgram) {
    const WindowManager windowManager(x);
    CountingWindow settings;
    int shortcuts = 0;
    const QShortcut shortcut(Qt::Key_Escape, &settings);
    QObject::connect(&shortcut, &QShortcut::activated, &settings, [&] { ++shortcuts; });
    settings.setGeometry(100, 400, 300, 200);
    settings.show();
    settings.requestActivate();
    ASSERT_TRUE(waitUntil([&] { return settings.isActive(); }));
    openMenu();
    person.pressEscape();
    EXPECT_TRUE(waitUntil([this] { return menu.keys.contains(Qt::Key_Escape); }));
    EXPECT_EQ(shortcuts, 0);
    EXPECT_TRUE(settings.keys.isEmpty());
    menu.close();
    person.pressEscape();
    EXPECT_TRUE(waitUntil([&] { return shortcuts == 1; })) << "the keyboard is free again";
}

TEST_F(X11Popup, ClosesWhenAnotherProgramHoldsThePointer) {
    show();
    PlainWindow grabbing(display, {900, 500, 300, 300}, PlainWindow::Kind::unmanaged);
    grabbing.grabPointer();
    popUp();
    EXPECT_TRUE(closes());
}

TEST_F(X11Popup, ClosesWhenAnotherProgramHoldsTheKeyboard) {
    show();
    PlainWindow grabbing(display, {900, 500, 300, 300}, PlainWindow::Kind::unmanaged);
    grabbing.grabKeyboard();
    popUp();
    EXPECT_TRUE(closes());
    person.pressAt(onPill);
    EXPECT_TRUE(waitUntil([this] { return window.presses == 1; })) << "the pointer is free";
}

TEST_F(X11Popup, CanBeShownAgain) {
    openMenu();
    menu.close();
    popUp({100, 30});
    ASSERT_TRUE(waitUntil([this] { return holdsPointer(); }));
    EXPECT_EQ(place(), QRect(QPoint(540, 30), menuSize));
    person.pressAt({100, 600});
    EXPECT_TRUE(closes());
}

TEST_F(X11Popup, OpensWhileAButtonIsHeldOnTheOverlay) {
    show();
    window.onPress = [this] { popUp(); };
    person.pointAt(onPill);
    person.hold(Person::secondary);
    ASSERT_TRUE(waitUntil([this] { return holdsPointer(); }));
    runFor(std::chrono::milliseconds(100));
    EXPECT_TRUE(menu.isVisible());
    person.release(Person::secondary);
    runFor(std::chrono::milliseconds(50));
    EXPECT_TRUE(menu.isVisible());
    window.onPress = [] {};
    PlainWindow other(display, {0, 500, 400, 200}, PlainWindow::Kind::unmanaged);
    person.pressAt({100, 600});
    EXPECT_TRUE(closes()) << "it holds the pointer";
    EXPECT_EQ(other.presses(), 0);
    person.pressAt({100, 600});
    EXPECT_TRUE(waitUntil([&] { return other.presses() == 1; })) << "the pointer is free again";
}

TEST_F(X11Popup, IsWithoutACompositingManagerWhatItsRoundCornersCoverAsAWhole) {
    openMenu();
    settle();
    const auto shape = x.shape(static_cast<xcb_window_t>(menu.winId()), XCB_SHAPE_SK_BOUNDING);
    constexpr double radius = 10;
    for (int row = 0; row < radius; ++row)
        for (int column = 0; column < radius; ++column) {
            const bool whole = std::hypot(radius - column, radius - row) <= radius;
            for (const QPoint pixel : {QPoint(column, row), QPoint(199 - column, row),
                                       QPoint(column, 89 - row), QPoint(199 - column, 89 - row)})
                EXPECT_EQ(shape.contains(pixel), whole) << pixel.x() << ", " << pixel.y();
        }
    EXPECT_TRUE(shape.contains(QPoint(100, 0)));
    EXPECT_TRUE(shape.contains(QPoint(0, 45)));
}

TEST_F(X11Popup, IsWithACompositingManagerTheWholeRectangle) {
    show();
    const QRegion whole(QRect(QPoint(), windowPixels.size()));
    ASSERT_TRUE(waitUntil([&] { return bounding() != whole; }));
    const CompositingManager compositing(x);
    ASSERT_TRUE(waitUntil([&] { return bounding() == whole; })) << "the manager is not noticed";
    popUp();
    ASSERT_TRUE(waitUntil([this] { return holdsPointer(); }));
    settle();
    EXPECT_EQ(x.shape(static_cast<xcb_window_t>(menu.winId()), XCB_SHAPE_SK_BOUNDING),
              QRegion(QRect(QPoint(0, 0), menuSize)));
}

} // namespace
} // namespace brellowind::test
