// SPDX-License-Identifier: MIT

#include "views/pill/Stage.h"

#include "settings/SettingsRouter.h"
#include "views/scene/TapArea.h"

#include <QMouseEvent>

namespace brellowind {
namespace {

class PillMenuTest : public test::Stage {
protected:
    PillMenuTest() { machine.appear(); }

    void open(QPoint at) {
        click(at, Qt::RightButton);
        EXPECT_TRUE(menu()->isVisible());
    }
    void open() { open(middle(pill())); }

    QList<TapArea*> entries() { return menu()->root().findChildren<TapArea*>(); }

    QStringList texts() {
        QStringList result;
        for (auto* entry : entries())
            result.push_back(entry->accessibleName());
        return result;
    }

    /// Of the button that opened the menu.
    void drag(QPoint from, QPoint to) {
        const auto send = [&](QEvent::Type type, QPoint at, Qt::MouseButtons held) {
            QMouseEvent event(type, at, menu()->mapToGlobal(at),
                              held ? Qt::NoButton : Qt::RightButton, held, Qt::NoModifier);
            QCoreApplication::sendEvent(menu(), &event);
        };
        send(QEvent::MouseMove, from, Qt::RightButton);
        send(QEvent::MouseMove, to, Qt::RightButton);
        send(QEvent::MouseButtonRelease, to, Qt::NoButton);
    }

    void choose(std::size_t index) {
        open();
        QTest::mouseClick(menu(), Qt::LeftButton, {}, middle(entries().at(index)));
        machine.runTurns();
    }
};

TEST_F(PillMenuTest, OffersNoCheckWithoutAReleaseFeed) {
    machine.machine.constants.updateFeedURL.clear();
    open();
    EXPECT_EQ(texts(),
              QStringList({QStringLiteral("Open Settings"), QStringLiteral("Quit Brellowind")}));
}

TEST_F(PillMenuTest, IsNearlyBlackWithAFaintBorder) {
    open();
    const QImage image = menu()->grab();
    const int middle = image.width() / 2;
    EXPECT_EQ(image.pixelColor(middle, 3), QColor(28, 28, 31));
    EXPECT_NEAR(image.pixelColor(middle, 0).green(), 28 + 0.12 * (255 - 28), 1);
}

TEST_F(PillMenuTest, OpensOnASecondaryClickAnywhereOnThePill) {
    for (auto* piece : {pill(), artwork(), waveform()}) {
        const auto before = form();
        open(middle(piece));
        EXPECT_EQ(form(), before) << "and nothing else happens";
        menu()->close();
    }
    machine.movePointer(test::View::overThePill);
    settle();
    open(middle(grabber()));
    EXPECT_EQ(machine.spotify.toggles(), 0U);
}

TEST_F(PillMenuTest, OpensOnThePressWhereverTheButtonIsReleased) {
    const QPoint at = onWindow(pill(), {150, 40});
    QTest::mousePress(&window, Qt::RightButton, {}, at);
    ASSERT_NE(menu(), nullptr);
    EXPECT_TRUE(menu()->isVisible());
    EXPECT_EQ(windowSystem.poppedUpAt, (Point{double(at.x()), double(at.y())}));
    const auto before = form();
    QTest::mouseRelease(&window, Qt::RightButton, {}, at + QPoint(60, 0));
    machine.runTurns();
    EXPECT_TRUE(menu()->isVisible());
    EXPECT_EQ(form(), before);
    menu()->close();
    click(onWindow(pill(), {130, 15}));
    EXPECT_TRUE(form().isMinimized) << "the next press acts as ever";
}

TEST_F(PillMenuTest, IsFilledToItsEdgeUnderTheLineThatRunsThere) {
    open();
    QCoreApplication::processEvents();
    const QImage image = menu()->grab();
    const double ratio = image.devicePixelRatio();
    const int middle = image.height() / 2;
    const int first = qAlpha(image.pixel(0, middle));
    const int last = qAlpha(image.pixel(image.width() - 1, middle));
    EXPECT_EQ(first, 255) << "nothing of the desktop shines through";
    EXPECT_EQ(last, 255);
    EXPECT_GT(qGray(image.pixel(0, middle)), qGray(image.pixel(int(3 * ratio), middle)));
    EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0) << "its corners are round";
}

TEST_F(PillMenuTest, OpensInTheArtworkPanelAndWhileMinimized) {
    click(artwork());
    settle();
    open(middle(artwork()));
    menu()->close();
    click(artwork());
    click(onWindow(pill(), {130, 12}));
    settle();
    ASSERT_TRUE(form().isMinimized);
    open();
}

TEST_F(PillMenuTest, OpensTheSettings) {
    choose(0);
    EXPECT_EQ(machine.settingsOpenings, 1);
    EXPECT_FALSE(menu()->isVisible());
}

TEST_F(PillMenuTest, ChecksForUpdates) {
    machine.parts.router.setSelectedTab(SettingsTab::about);
    const auto before = machine.requests();
    choose(1);
    EXPECT_EQ(machine.settingsOpenings, 1);
    EXPECT_EQ(machine.parts.router.selectedTab.get(), SettingsTab::general);
    EXPECT_EQ(machine.requests(), before + 1);
    EXPECT_FALSE(menu()->isVisible());
}

TEST_F(PillMenuTest, Quits) {
    choose(2);
    EXPECT_EQ(machine.machine.mainLoop.quits, 1);
    EXPECT_EQ(machine.settingsOpenings, 0);
}

TEST_F(PillMenuTest, ArrowKeysAndEnterChooseAnEntry) {
    const auto before = machine.requests();
    open();
    QTest::keyClick(menu(), Qt::Key_Down);
    QTest::keyClick(menu(), Qt::Key_Down);
    QTest::keyClick(menu(), Qt::Key_Up);
    QTest::keyClick(menu(), Qt::Key_Return);
    EXPECT_EQ(machine.settingsOpenings, 1);
    EXPECT_EQ(machine.requests(), before) << "the second entry makes one";
    EXPECT_FALSE(menu()->isVisible());
}

TEST_F(PillMenuTest, AssistiveProgramsFindTheFocusOnTheHighlightedEntry) {
    open();
    QTest::keyClick(menu(), Qt::Key_Home);
    QTest::keyClick(menu(), Qt::Key_Down);
    for (int index = 0; index < 3; ++index) {
        const auto state = QAccessible::queryAccessibleInterface(entries().at(index))->state();
        EXPECT_TRUE(state.focusable);
        EXPECT_EQ(state.focused, index == 1) << index;
    }
}

TEST_F(PillMenuTest, HomeAndEndGoToTheEnds) {
    open();
    QTest::keyClick(menu(), Qt::Key_End);
    QTest::keyClick(menu(), Qt::Key_Home);
    QTest::keyClick(menu(), Qt::Key_Return);
    EXPECT_EQ(machine.settingsOpenings, 1);
    open();
    QTest::keyClick(menu(), Qt::Key_End);
    QTest::keyClick(menu(), Qt::Key_Return);
    EXPECT_EQ(machine.machine.mainLoop.quits, 1);
}

TEST_F(PillMenuTest, ALetterGoesToTheNextEntryThatBeginsWithIt) {
    open();
    QTest::keyClick(menu(), Qt::Key_Q);
    QTest::keyClick(menu(), Qt::Key_O);
    QTest::keyClick(menu(), Qt::Key_O);
    QTest::keyClick(menu(), Qt::Key_X); // no entry begins with it
    QTest::keyClick(menu(), Qt::Key_Return);
    EXPECT_EQ(machine.settingsOpenings, 1);
    open();
    QTest::keyClick(menu(), Qt::Key_Q);
    QTest::keyClick(menu(), Qt::Key_Return);
    EXPECT_EQ(machine.machine.mainLoop.quits, 1);
}

TEST_F(PillMenuTest, ADragFromThePillChoosesWhereItEnds) {
    open();
    drag({2, 2}, middle(entries().at(2)));
    EXPECT_EQ(machine.machine.mainLoop.quits, 1);
    EXPECT_FALSE(menu()->isVisible());
}

TEST_F(PillMenuTest, AHandThatIsNotQuiteStillChoosesNothing) {
    open();
    const QPoint at = middle(entries().at(2));
    drag(at, at + QPoint(1, 1));
    EXPECT_TRUE(menu()->isVisible());
    EXPECT_EQ(machine.machine.mainLoop.quits, 0);
}

TEST_F(PillMenuTest, ArrowKeysGoOnFromOneEndAtTheOther) {
    open();
    QTest::keyClick(menu(), Qt::Key_Up);
    QTest::keyClick(menu(), Qt::Key_Enter);
    EXPECT_EQ(machine.machine.mainLoop.quits, 1) << "the last entry";
    open();
    QTest::keyClick(menu(), Qt::Key_Up);
    QTest::keyClick(menu(), Qt::Key_Down);
    QTest::keyClick(menu(), Qt::Key_Space);
    EXPECT_EQ(machine.settingsOpenings, 1) << "the first entry";
}

TEST_F(PillMenuTest, ArrowKeysGoOnFromTheEntryUnderThePointer) {
    open();
    QTest::mouseMove(menu(), middle(entries().at(1)));
    QTest::keyClick(menu(), Qt::Key_Down);
    QTest::keyClick(menu(), Qt::Key_Return);
    EXPECT_EQ(machine.machine.mainLoop.quits, 1);
}

TEST_F(PillMenuTest, EnterChoosesNothingBeforeAnEntryIsHighlighted) {
    open();
    QTest::keyClick(menu(), Qt::Key_Down);
    menu()->close();
    open();
    QTest::mouseMove(menu(), {1, 1}); // its rim
    QTest::keyClick(menu(), Qt::Key_Return);
    EXPECT_EQ(machine.settingsOpenings, 0);
    EXPECT_TRUE(menu()->isVisible());
}

TEST_F(PillMenuTest, ClosesOnEscapeAndDoesNothing) {
    open();
    QTest::keyClick(menu(), Qt::Key_Escape);
    EXPECT_FALSE(menu()->isVisible());
    EXPECT_EQ(machine.settingsOpenings, 0);
}

TEST_F(PillMenuTest, StaysOpenOnOtherKeys) {
    open();
    QTest::keyClick(menu(), Qt::Key_A);
    EXPECT_TRUE(menu()->isVisible());
}

TEST_F(PillMenuTest, LetsThePillBeTappedAgainOnceItIsClosed) {
    open();
    QTest::keyClick(menu(), Qt::Key_Escape);
    click(onWindow(pill(), {100, 12}));
    EXPECT_TRUE(form().isMinimized);
}

TEST_F(PillMenuTest, StaysOpenWhenThePointerLeavesThePill) {
    machine.movePointer(test::View::overThePill);
    open();
    machine.movePointer(test::View::elsewhere);
    settle();
    EXPECT_TRUE(menu()->isVisible());
}

TEST_F(PillMenuTest, StaysOpenOnAClickOnItsRim) {
    open();
    QTest::mouseClick(menu(), Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_TRUE(menu()->isVisible());
}

} // namespace
} // namespace brellowind
