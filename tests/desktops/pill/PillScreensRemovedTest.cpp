// SPDX-License-Identifier: MIT

#include "desktops/pill/PillOnCompositor.h"

namespace brellowind::test {
namespace {

class PillScreensRemoved : public PillOnCompositor {
protected:
    /// Nothing but the pill is on the screens.
    bool hasPill(const Picture& picture) {
        const QRectF pill = program->rectangle("pill");
        const double beside = picture.image().width() / 2 + pill.width() / 2 + 20;
        return picture.at(QPointF(picture.image().width() / 2, 2)) == Qt::black &&
               picture.at(QPointF(beside, 20)) != Qt::black;
    }

    bool comesTo(const QString& screen) {
        return waitUntil([&] { return hasPill(Picture(compositor->screenshot(screen))); });
    }
};

TEST_F(PillScreensRemoved, SendThePillToTheOneThatIsLeft) {
    below();
    startSinging();
    const QString first = compositor->screens().value(0).name;
    const QString added = compositor->addScreen();
    ASSERT_TRUE(compositor->removeScreen(first));
    EXPECT_TRUE(comesTo(added));
    enterPill();
    compositor->click(background());
    EXPECT_TRUE(program->becomes("isMinimized"));
    EXPECT_EQ(program->errors(), QStringList());
}

TEST_F(PillScreensRemoved, LeaveThePillWhereItIsWhenItsOwnStays) {
    below();
    startSinging();
    const QRect before = silhouette(picture());
    const QString added = compositor->addScreen();
    ASSERT_TRUE(compositor->removeScreen(added));
    EXPECT_TRUE(shows("screen-removed",
                      [&](const Picture& picture) { return silhouette(picture) == before; }));
    enterPill();
}

} // namespace
} // namespace brellowind::test
