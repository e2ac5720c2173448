#include "platform/linux/x11/PillOnX11.h"

#include <QDeadlineTimer>

namespace brellowind::test {
namespace {

using Kind = OtherProgram::Kind;
using std::chrono::milliseconds;

using StayOnTop = PillOnX11;

TEST_F(StayOnTop, ComesBackAboveAWindowThatIsMappedOverIt) {
    show();
    const auto rival = other.open({300, 0, 600, 200}, Kind::bypassing);
    EXPECT_TRUE(waitUntil([&] { return other.isAbove(id(), rival); }));
}

TEST_F(StayOnTop, ComesBackAboveAWindowThatIsRaisedOrMovedOverIt) {
    const auto raised = other.open({300, 0, 600, 200}, Kind::bypassing);
    show();
    ASSERT_TRUE(other.isAbove(id(), raised));
    other.raise(raised);
    EXPECT_TRUE(waitUntil([&] { return other.isAbove(id(), raised); }));
    const auto moved = other.open({0, 600, 600, 200}, Kind::bypassing);
    runFor(milliseconds(100));
    ASSERT_TRUE(other.isAbove(moved, id()));
    other.move(moved, {300, 0});
    EXPECT_TRUE(waitUntil([&] { return other.isAbove(id(), moved); }));
}

TEST_F(StayOnTop, LeavesAWindowAboveThatDoesNotCoverIt) {
    show();
    const auto rival = other.open({0, 400, 600, 200}, Kind::bypassing);
    runFor(milliseconds(300));
    EXPECT_TRUE(other.isAbove(rival, id()));
}

TEST_F(StayOnTop, LeavesThisProgramsOwnWindowsAbove) {
    show();
    QRasterWindow menu;
    menu.setFlags(Qt::Popup | Qt::BypassWindowManagerHint);
    menu.setGeometry(500, 20, 200, 200);
    menu.show();
    const auto menuId = static_cast<xcb_window_t>(menu.winId());
    ASSERT_TRUE(waitUntil([&] { return other.isViewable(menuId); }));
    runFor(milliseconds(300));
    EXPECT_TRUE(other.isAbove(menuId, id()));
    const auto rival = other.open({300, 0, 600, 200}, Kind::bypassing);
    EXPECT_TRUE(waitUntil([&] { return other.isAbove(id(), rival); }));
    EXPECT_TRUE(other.isAbove(menuId, id()));
}

TEST_F(StayOnTop, IsAboveAFullScreenWindowOfAWindowManager) {
    const WindowManager windowManager;
    show();
    const auto rival = other.open({0, 0, 600, 400}, Kind::managed);
    ASSERT_TRUE(waitUntil([&] { return other.topLevel(rival) != rival; }));
    other.makeFullScreen(rival);
    ASSERT_TRUE(waitUntil([&] { return other.frame(rival) == QRect(0, 0, 1280, 800); }));
    EXPECT_TRUE(waitUntil([&] { return other.isAbove(id(), rival); }));
    other.raise(rival);
    runFor(milliseconds(100));
    EXPECT_TRUE(waitUntil([&] { return other.isAbove(id(), rival); }));
    EXPECT_TRUE(waitUntil([this] { return other.pixel(onPill) == green; }));
}

TEST_F(StayOnTop, StaysBelowAWindowThatShieldsTheWholeScreen) {
    show();
    const auto locker = other.open({0, 0, 1280, 800}, Kind::bypassing);
    runFor(milliseconds(300));
    EXPECT_TRUE(other.isAbove(locker, id()));
    other.open({300, 0, 600, 200}, Kind::bypassing);
    runFor(milliseconds(300));
    EXPECT_TRUE(other.isAbove(locker, id()));
    other.close(locker);
    EXPECT_TRUE(waitUntil([this] { return other.stack().back() == id(); }));
}

TEST_F(StayOnTop, FightsForTheTopFiveTimesASecondAtMost) {
    show();
    const auto rival = other.open({300, 0, 600, 200}, Kind::bypassing);
    ASSERT_TRUE(waitUntil([&] { return other.isAbove(id(), rival); }));
    int raises = 1;
    const QDeadlineTimer end(milliseconds(1500));
    while (!end.hasExpired()) {
        other.raise(rival);
        if (waitUntil([&] { return other.isAbove(id(), rival); }, milliseconds(100)))
            ++raises;
    }
    EXPECT_EQ(raises, 5);
    EXPECT_TRUE(other.isAbove(rival, id()));
    EXPECT_TRUE(waitUntil([&] { return other.isAbove(id(), rival); })); // after the pause
}

} // namespace
} // namespace brellowind::test
