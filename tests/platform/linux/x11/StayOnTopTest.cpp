// SPDX-License-Identifier: MIT

#include "platform/linux/x11/PillOnX11.h"
#include "platform/linux/x11/X11Connection.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QDeadlineTimer>

namespace brellowind::test {
namespace {

using Kind = PlainWindow::Kind;
using std::chrono::milliseconds;

using StayOnTop = PillOnX11;

TEST_F(StayOnTop, ComesBackAboveAWindowThatIsMappedOverIt) {
    show();
    const PlainWindow rival(display, {300, 0, 600, 200}, Kind::unmanaged);
    EXPECT_TRUE(waitUntil([&] { return x.isAbove(id(), rival.id()); }));
}

TEST_F(StayOnTop, ComesBackAboveAWindowThatIsRaisedOrMovedOverIt) {
    PlainWindow raised(display, {300, 0, 600, 200}, Kind::unmanaged);
    show();
    ASSERT_TRUE(x.isAbove(id(), raised.id()));
    raised.raise();
    EXPECT_TRUE(waitUntil([&] { return x.isAbove(id(), raised.id()); }));
    PlainWindow moved(display, {0, 600, 600, 200}, Kind::unmanaged);
    runFor(milliseconds(100));
    ASSERT_TRUE(x.isAbove(moved.id(), id()));
    moved.moveTo({300, 0});
    EXPECT_TRUE(waitUntil([&] { return x.isAbove(id(), moved.id()); }));
}

TEST_F(StayOnTop, LeavesAWindowAboveThatDoesNotCoverIt) {
    show();
    const PlainWindow rival(display, {0, 400, 600, 200}, Kind::unmanaged);
    react();
    EXPECT_TRUE(x.isAbove(rival.id(), id()));
}

TEST_F(StayOnTop, LeavesThisProgramsOwnWindowsAbove) {
    show();
    QRasterWindow menu;
    menu.setFlags(Qt::Popup | Qt::BypassWindowManagerHint);
    menu.setGeometry(500, 20, 200, 200);
    menu.show();
    const auto menuId = static_cast<xcb_window_t>(menu.winId());
    ASSERT_TRUE(waitUntil([&] { return x.isViewable(menuId); }));
    react();
    EXPECT_TRUE(x.isAbove(menuId, id()));
    const PlainWindow rival(display, {300, 0, 600, 200}, Kind::unmanaged);
    EXPECT_TRUE(waitUntil([&] { return x.isAbove(id(), rival.id()); }));
    EXPECT_TRUE(x.isAbove(menuId, id()));
}

TEST_F(StayOnTop, IsAboveAFullScreenWindowOfAWindowManager) {
    const WindowManager windowManager(x);
    show();
    PlainWindow rival(display, {0, 0, 600, 400}, Kind::fullScreen);
    ASSERT_TRUE(waitUntil([&] { return x.geometry(rival.id()) == QRect(0, 0, 1280, 800); }));
    EXPECT_TRUE(waitUntil([&] { return x.isAbove(id(), rival.id()); }));
    rival.raise();
    runFor(milliseconds(100));
    EXPECT_TRUE(waitUntil([&] { return x.isAbove(id(), rival.id()); }));
    EXPECT_TRUE(waitUntil([this] { return x.pixel(onPill) == green; }));
}

TEST_F(StayOnTop, StaysBelowAWindowThatShieldsTheWholeScreen) {
    show();
    std::optional<PlainWindow> locker(std::in_place, display, QRect(0, 0, 1280, 800),
                                      Kind::unmanaged);
    react();
    EXPECT_TRUE(x.isAbove(locker->id(), id()));
    const PlainWindow rival(display, {300, 0, 600, 200}, Kind::unmanaged);
    react();
    EXPECT_TRUE(x.isAbove(locker->id(), id()));
    locker.reset();
    EXPECT_TRUE(waitUntil([this] { return x.stack().back() == id(); }));
}

TEST_F(StayOnTop, FightsForTheTopFiveTimesASecondAtMost) {
    show();
    PlainWindow rival(display, {300, 0, 600, 200}, Kind::unmanaged);
    ASSERT_TRUE(waitUntil([&] { return x.isAbove(id(), rival.id()); }));
    int raises = 1;
    const QDeadlineTimer end(milliseconds(1500));
    while (!end.hasExpired()) {
        rival.raise();
        if (waitUntil([&] { return x.isAbove(id(), rival.id()); }, milliseconds(100)))
            ++raises;
    }
    EXPECT_EQ(raises, 5);
    EXPECT_TRUE(x.isAbove(rival.id(), id()));
    EXPECT_TRUE(waitUntil([&] { return x.isAbove(id(), rival.id()); })); // after the pause
}

/// Counts events of other programs' windows that Qt receives.
class ForeignConfigures final : public QAbstractNativeEventFilter {
public:
    ForeignConfigures() { QCoreApplication::instance()->installNativeEventFilter(this); }

    bool nativeEventFilter(const QByteArray& /*type*/, void* message, qintptr*) override {
        const auto& event = *static_cast<const xcb_generic_event_t*>(message);
        const auto& configure = platform::eventAs<xcb_configure_notify_event_t>(event);
        count += platform::eventType(event) == XCB_CONFIGURE_NOTIFY &&
                 configure.event != configure.window;
        return false;
    }

    int count = 0;
};

// It would ask for all screens again at each of them.
TEST_F(StayOnTop, KeepsTheMovesOfOtherWindowsFromQt) {
    ForeignConfigures foreign; // filters are asked from the last to the first
    show();
    PlainWindow rival(display, {0, 400, 600, 200}, Kind::unmanaged);
    for (int i = 0; i < 20; ++i)
        rival.moveTo({i, 400});
    rival.moveTo({300, 0});
    ASSERT_TRUE(waitUntil([&] { return x.isAbove(id(), rival.id()); }));
    EXPECT_EQ(foreign.count, 0);
}

} // namespace
} // namespace brellowind::test
