// SPDX-License-Identifier: MIT

#include "desktops/pill/PillOnCompositor.h"
#include "e2e/AccessibilityReader.h"

#include <cmath>

namespace brellowind::test {
namespace {

class PillAccessibility : public PillOnCompositor {
protected:
    AccessibilityReader reader{compositor->session().bus(), compositor->session().environment()};

    static bool agree(QRect a, QRectF b) {
        return std::abs(a.left() - b.left()) <= 1 && std::abs(a.top() - b.top()) <= 1 &&
               std::abs(a.width() - b.width()) <= 2 && std::abs(a.height() - b.height()) <= 2;
    }
};

TEST_F(PillAccessibility, TheLineCanBeReadWhereItIs) {
    startSinging();
    const auto line = reader.waitFor("line", "label");
    ASSERT_TRUE(line);
    const QRect extents = reader.extents(*line);
    EXPECT_TRUE(agree(extents, place("pill"))) << extents.x() << ", " << extents.y() << ", "
                                               << extents.width() << " x " << extents.height();
}

TEST_F(PillAccessibility, TheIndicatorPlaysAndPauses) {
    startSinging();
    const auto pause = reader.waitFor("Pause", "push button");
    ASSERT_TRUE(pause);
    EXPECT_TRUE(reader.press(*pause));
    EXPECT_TRUE(waitUntil([&] { return player->status() == QStringLiteral("Paused"); }));
    const auto play = reader.waitFor("Play", "push button");
    ASSERT_TRUE(play);
    EXPECT_TRUE(reader.press(*play));
    EXPECT_TRUE(waitUntil([&] { return player->status() == QStringLiteral("Playing"); }));
}

TEST_F(PillAccessibility, TheCoverOpensThePanelAndTheGrabberClosesIt) {
    startSinging();
    const auto cover = reader.waitFor("Show artwork", "push button");
    ASSERT_TRUE(cover);
    const QPointF middle = QRectF(reader.extents(*cover)).center();
    EXPECT_TRUE(place("artwork").contains(middle)) << middle.x() << ", " << middle.y();
    EXPECT_TRUE(reader.press(*cover));
    EXPECT_TRUE(program->becomes("isArtExpanded"));
    const auto grabber = reader.waitFor("Close artwork", "push button");
    ASSERT_TRUE(grabber);
    EXPECT_TRUE(reader.press(*grabber));
    EXPECT_TRUE(program->becomes("isArtExpanded", false));
}

TEST_F(PillAccessibility, TheMenuCanBeUsedWhereItIs) {
    startSinging();
    openMenu();
    const auto quit = reader.waitFor("Quit Brellowind", "menu item");
    ASSERT_TRUE(quit);
    const QPointF middle = QRectF(reader.extents(*quit)).center();
    EXPECT_LE(std::abs(middle.x() - middleOfEntry("Quit Brellowind").x()), 2);
    EXPECT_LE(std::abs(middle.y() - middleOfEntry("Quit Brellowind").y()), 2);
    EXPECT_TRUE(reader.press(*quit));
    EXPECT_EQ(program->process().finish(), 0);
}

} // namespace
} // namespace brellowind::test
