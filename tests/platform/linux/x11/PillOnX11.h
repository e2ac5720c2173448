// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/ScreenLock.h"
#include "platform/linux/x11/PlainX11Input.h"
#include "platform/linux/x11/X11Overlay.h"
#include "platform/qt/QtMainLoop.h"
#include "session/Desktop.h"
#include "session/EventLoop.h"
#include "session/x11/Managers.h"
#include "session/x11/Person.h"
#include "session/x11/PlainWindow.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QRasterWindow>
#include <QScreen>
#include <QSurfaceFormat>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <vector>

namespace brellowind::test {

inline Path rectanglePath(const QRectF& rect) {
    Path path;
    path.move({rect.left(), rect.top()});
    path.line({rect.right(), rect.top()});
    path.line({rect.right(), rect.bottom()});
    path.line({rect.left(), rect.bottom()});
    path.close();
    return path;
}

/// A window with a green pill, transparent elsewhere.
class GreenWindow : public QRasterWindow {
public:
    GreenWindow() {
        QSurfaceFormat transparent;
        transparent.setAlphaBufferSize(8);
        setFormat(transparent);
    }

    QRect pill;
    std::function<void()> onPointer = [] {}; ///< entered or moved
    std::function<void()> onPress = [] {};
    int presses = 0;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(QRect(QPoint(), size()), Qt::transparent);
        painter.fillRect(pill, Qt::green);
    }

    void mousePressEvent(QMouseEvent*) override {
        ++presses;
        onPress();
    }

    bool event(QEvent* event) override {
        if (event->type() == QEvent::Enter || event->type() == QEvent::MouseMove)
            onPointer();
        return QRasterWindow::event(event);
    }
};

/// An overlay of 400 × 300 points at (440, 0) from the top left of the screen, whose content is a
/// rectangle of 200 × 60 at the middle of its top edge.
class PillOnX11 : public testing::Test {
protected:
    const QString display = qEnvironmentVariable("DISPLAY");
    const QColor green{Qt::green};
    const QRect windowPixels{440, 0, 400, 300};
    const QRect pillInWindow{100, 0, 200, 60};
    const QPoint onPill{640, 30};
    const QPoint besidePill{500, 30};

    void show() {
        overlay.setIgnoresMouseEvents(false);
        overlay.setFrame({440, 500, 400, 300});
        setOutline(pillInWindow);
        overlay.orderFrontRegardless();
        ASSERT_TRUE(waitUntil([this] { return isShown(); }));
        settle();
    }

    /// Waits until the server has processed this program's requests.
    void settle() {
        platform::X11Connection().ask<xcb_get_input_focus, xcb_get_input_focus_reply>();
    }

    /// Lets this program react to all that has happened at the server.
    void react() {
        settle();
        runFor(std::chrono::milliseconds(50));
        settle();
    }

    /// Another program's window, below the pill and around it.
    PlainWindow& openBeneath() {
        auto& beneath =
            beneath_.emplace(display, QRect(0, 0, 1280, 400), PlainWindow::Kind::unmanaged);
        EXPECT_TRUE(waitUntil([&] { return x.isAbove(id(), beneath.id()); }));
        return beneath;
    }

    void setOutline(const QRect& pill, const std::vector<Rect>& inputRects = {}) {
        window.pill = pill;
        overlay.setOutline(rectanglePath(pill), inputRects);
        window.update();
    }

    xcb_window_t id() const { return static_cast<xcb_window_t>(window.winId()); }
    bool isShown() { return window.handle() && x.isViewable(id()); }

    QRegion input() {
        settle();
        return x.shape(id(), XCB_SHAPE_SK_INPUT);
    }

    QRegion bounding() {
        settle();
        return x.shape(id(), XCB_SHAPE_SK_BOUNDING);
    }

    platform::QtMainLoop mainLoop;
    SessionBus bus;
    platform::ScreenLock lock{bus.connection(), bus.connection()};
    GreenWindow window;
    platform::PlainX11Input input_{mainLoop};
    platform::X11Overlay overlay{window, mainLoop, lock, input_};
    XClient x{display};
    Person person{x};
    std::optional<PlainWindow> beneath_;
};

} // namespace brellowind::test
