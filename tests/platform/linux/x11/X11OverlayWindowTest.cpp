#include "platform/linux/x11/PillOnX11.h"

namespace brellowind::test {
namespace {

using Kind = OtherProgram::Kind;

using X11OverlayWindow = PillOnX11;

TEST_F(X11OverlayWindow, StandsExactlyWhereItIsPutAndBypassesTheWindowManager) {
    show();
    EXPECT_EQ(other.frame(id()), windowPixels);
    EXPECT_TRUE(other.bypassesWindowManager(id()));
}

TEST_F(X11OverlayWindow, TakesThePointerWithinItsOutlineOnly) {
    show();
    EXPECT_EQ(input(), QRegion(pillInWindow));
    const auto beneath = other.open({0, 0, 1280, 400}, Kind::bypassing);
    overlay.orderFrontRegardless();
    ASSERT_TRUE(waitUntil([&] { return other.isAbove(id(), beneath); }));
    other.click(besidePill);
    EXPECT_EQ(other.clicks(beneath), 1);
    other.click(onPill);
    EXPECT_TRUE(waitUntil([&] { return window.presses == 1; }));
    EXPECT_EQ(other.clicks(beneath), 1);
}

} // namespace
} // namespace brellowind::test
