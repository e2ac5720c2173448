// SPDX-License-Identifier: MIT

#include "e2e/PillFixture.h"

namespace brellowind::test {
namespace {

class PillWindow : public PillOnDesktop {
protected:
    using PillOnDesktop::PillOnDesktop;
};

TEST_F(PillWindow, HangsFromTheMiddleOfTheTopEdge) {
    start();
    EXPECT_EQ(x.geometry(program->window()), QRect(400, 0, 640, 540));
}

TEST_F(PillWindow, BelongsToNoWindowManagerAndTakesNoFocus) {
    const PlainWindow other(desktop.xServer.display(), {100, 600, 200, 100},
                            PlainWindow::Kind::managed);
    ASSERT_TRUE(waitUntil([&] { return x.focus() == other.id(); }));
    startSinging();
    EXPECT_TRUE(x.overridesRedirect(program->window()));
    const auto listed = x.property(x.root(), "_NET_CLIENT_LIST");
    EXPECT_TRUE(listed.contains(other.id()));
    EXPECT_FALSE(listed.contains(program->window()));
    enterPill();
    person.press();
    EXPECT_TRUE(program->becomes("isMinimized"));
    EXPECT_EQ(x.focus(), other.id());
}

class PillWindowOnANarrowScreen : public PillWindow {
protected:
    PillWindowOnANarrowScreen() : PillWindow(QStringLiteral("600x800x24")) {}
};

TEST_F(PillWindowOnANarrowScreen, IsAsWideAsTheScreen) {
    start();
    EXPECT_EQ(x.geometry(program->window()), QRect(0, 0, 600, 540));
}

class PillWindowAtScaleTwo : public PillWindow {
protected:
    PillWindowAtScaleTwo() : PillWindow(QStringLiteral("2880x1800x24"), 2) {}
};

TEST_F(PillWindowAtScaleTwo, HasTwiceAsManyPixels) {
    start();
    EXPECT_EQ(x.geometry(program->window()), QRect(800, 0, 1280, 1080));
}

TEST_F(PillWindowAtScaleTwo, FeelsThePointerAtTheSamePoints) {
    startSinging();
    enterPill();
    person.pressAt(middleOf("artwork"));
    EXPECT_TRUE(program->becomes("isArtExpanded"));
}

class PillWindowUnderACompositingManager : public PillWindow {
protected:
    CompositingManager compositingManager{x};
};

TEST_F(PillWindowUnderACompositingManager, CastsAShadowWhileItIsLifted) {
    below();
    startSinging();
    enterPill();
    const QRectF pill = program->rectangle("pill");
    const QPoint beneath(720, int(pill.bottom()) + 6);
    EXPECT_TRUE(waitUntil([&] {
        const QColor colour = x.pixel(beneath);
        return colour.blue() > 0 && colour.blue() < PlainWindow::colour().blue();
    })) << qPrintable(x.pixel(beneath).name());
}

} // namespace
} // namespace brellowind::test
