// SPDX-License-Identifier: MIT

#include "settings/SettingsRouter.h"
#include "settings/UpdateChecker.h"
#include "settings/window/SettingsFixture.h"

#include <QIcon>
#include <QPointer>
#include <QQmlEngine>
#include <QTest>

namespace brellowind {
namespace {

using testing::IsEmpty;

class SettingsWindowTest : public SettingsFixture {
protected:
    void choose(SettingsTab tab) { parts.router.setSelectedTab(tab); }
};

TEST_F(SettingsWindowTest, IsNotThereBeforeItIsOpened) {
    turn();
    EXPECT_EQ(settings.window(), nullptr);
    EXPECT_THAT(machine.http.requests, IsEmpty());
}

TEST_F(SettingsWindowTest, IsAnOrdinaryWindowWithTheProgramsName) {
    open();
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().title(), QStringLiteral("Brellowind"));
    EXPECT_EQ(window().type(), Qt::Window);
    EXPECT_FALSE(window().flags() & Qt::WindowStaysOnTopHint);
    EXPECT_FALSE(window().flags() & Qt::FramelessWindowHint);
    EXPECT_FALSE(window().flags() & Qt::WindowMaximizeButtonHint);
}

TEST_F(SettingsWindowTest, HasTheProgramsIcon) {
    open();
    for (const int size : {32, 64})
        EXPECT_EQ(window().icon().actualSize({size, size}), QSize(size, size));
}

TEST_F(SettingsWindowTest, IsAsLargeAsItsContentAndNobodyCanPullIt) {
    open();
    for (const auto tab : {SettingsTab::general, SettingsTab::about}) {
        choose(tab);
        turn();
        const auto* page = item(tab == SettingsTab::general ? "generalPage" : "aboutPage");
        EXPECT_EQ(window().width(), 460);
        EXPECT_EQ(page->width(), 460);
        EXPECT_GE(page->height(), 360);
        EXPECT_EQ(page->mapToScene({0, page->height()}).y(), window().height());
        EXPECT_EQ(window().minimumSize(), window().size());
        EXPECT_EQ(window().maximumSize(), window().size());
    }
    EXPECT_EQ(item("aboutPage")->height(), 360);
}

TEST_F(SettingsWindowTest, GrowsAndShrinksWithItsContent) {
    open();
    const int height = window().height();
    auto* page = item("generalPage");
    const double implicitHeight = page->implicitHeight();
    page->setImplicitHeight(implicitHeight + 50);
    turn();
    EXPECT_EQ(window().height(), height + 50);
    EXPECT_EQ(window().maximumHeight(), height + 50);
    page->setImplicitHeight(implicitHeight);
    turn();
    EXPECT_EQ(window().height(), height);
    EXPECT_EQ(window().minimumHeight(), height);
}

TEST_F(SettingsWindowTest, OpensOnTheRoutersTab) {
    choose(SettingsTab::about);
    open();
    EXPECT_TRUE(item("aboutPage")->isVisible());
    EXPECT_FALSE(item("generalPage")->isVisible());
}

TEST_F(SettingsWindowTest, FollowsTheRouterWhileOpen) {
    open();
    EXPECT_TRUE(item("generalPage")->isVisible());
    choose(SettingsTab::about);
    EXPECT_TRUE(item("generalPage")->isVisible()) << "the view follows on the next turn";
    turn();
    EXPECT_TRUE(item("aboutPage")->isVisible());
    EXPECT_FALSE(item("generalPage")->isVisible());
    choose(SettingsTab::general);
    turn();
    EXPECT_TRUE(item("generalPage")->isVisible());
    EXPECT_FALSE(item("aboutPage")->isVisible());
}

TEST_F(SettingsWindowTest, OpeningItAgainShowsTheRoutersTabInTheSameWindow) {
    choose(SettingsTab::about);
    open();
    const auto* first = settings.window();
    choose(SettingsTab::general);
    settings.open();
    EXPECT_EQ(settings.window(), first);
    EXPECT_TRUE(item("generalPage")->isVisible());
    EXPECT_FALSE(item("aboutPage")->isVisible());
}

TEST_F(SettingsWindowTest, OpeningItAgainBringsItBackToTheFront) {
    open();
    QWindow other;
    other.show();
    other.requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    ASSERT_FALSE(window().isActive());
    window().setWindowStates(Qt::WindowMinimized);
    settings.open();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
    EXPECT_FALSE(window().windowStates() & Qt::WindowMinimized);
}

TEST_F(SettingsWindowTest, WritesThePickedTabBackToTheRouter) {
    open();
    click(pressable(QStringLiteral("About")));
    EXPECT_EQ(parts.router.selectedTab.get(), SettingsTab::about);
    EXPECT_TRUE(item("aboutPage")->isVisible());
    click(pressable(QStringLiteral("General")));
    EXPECT_EQ(parts.router.selectedTab.get(), SettingsTab::general);
    EXPECT_TRUE(item("generalPage")->isVisible());
}

TEST_F(SettingsWindowTest, StartsACheckEachTimeTheGeneralTabAppears) {
    open();
    EXPECT_EQ(machine.http.requests.size(), 1U);
    answerVersion("1.0");
    click(pressable(QStringLiteral("General")));
    settings.open();
    turn();
    EXPECT_EQ(machine.http.requests.size(), 1U) << "the tab was there all the time";
    click(pressable(QStringLiteral("About")));
    EXPECT_EQ(machine.http.requests.size(), 1U);
    click(pressable(QStringLiteral("General")));
    EXPECT_EQ(machine.http.requests.size(), 2U);
    answerVersion("1.0");
    window().close();
    turn();
    open();
    EXPECT_EQ(machine.http.requests.size(), 3U);
}

TEST_F(SettingsWindowTest, StartsNoCheckOnTheAboutTab) {
    choose(SettingsTab::about);
    open();
    EXPECT_THAT(machine.http.requests, IsEmpty());
}

TEST_F(SettingsWindowTest, CancelsTheCheckOfAnAppearanceWhenTheTabIsLeft) {
    open();
    choose(SettingsTab::about);
    turn();
    EXPECT_TRUE(machine.http.requests.at(0)->aborted);
}

TEST_F(SettingsWindowTest, CancelsTheCheckOfAnAppearanceWhenTheWindowCloses) {
    open();
    window().close();
    turn();
    EXPECT_TRUE(machine.http.requests.at(0)->aborted);
    EXPECT_EQ(machine.tasks.running(), 0U);
}

TEST_F(SettingsWindowTest, IsGivenBackWholeWhenItCloses) {
    open();
    const QPointer<QQuickWindow> view = settings.window();
    const QPointer<QQmlEngine> engine = qmlEngine(item("generalPage"));
    ASSERT_FALSE(engine.isNull());
    EXPECT_TRUE(window().close());
    turn();
    EXPECT_EQ(settings.window(), nullptr);
    EXPECT_TRUE(view.isNull());
    EXPECT_TRUE(engine.isNull());
    EXPECT_EQ(machine.mainLoop.timerCount(), 0U);
}

TEST_F(SettingsWindowTest, AsksTheLoginItemAnewWhenItIsOpenedAnew) {
    open();
    EXPECT_FALSE(accessible(item("launchAtLogin"))->state().checked);
    window().close();
    turn();
    machine.loginItem.current = platform::LoginItem::Status::enabled;
    open();
    EXPECT_TRUE(accessible(item("launchAtLogin"))->state().checked);
}

TEST_F(SettingsWindowTest, CanBeOpenedAgainInTheTurnInWhichItClosed) {
    open();
    window().close();
    settings.open();
    turn();
    ASSERT_NE(settings.window(), nullptr);
    EXPECT_TRUE(window().isVisible());
    ASSERT_EQ(machine.http.requests.size(), 2U);
    EXPECT_FALSE(machine.http.requests[1]->aborted);
}

TEST_F(SettingsWindowTest, GoesWithItsOwnerWhileOpen) {
    QPointer<QQuickWindow> view;
    {
        SettingsWindow owned(parts.services());
        owned.open();
        turn();
        view = owned.window();
        ASSERT_FALSE(view.isNull());
    }
    turn();
    EXPECT_TRUE(view.isNull());
    EXPECT_TRUE(machine.http.requests.at(0)->aborted);
}

TEST_F(SettingsWindowTest, IsLargerOnADesktopWithALargeFont) {
    const QFont usual = QGuiApplication::font();
    QFont large = usual;
    large.setPointSizeF(16.5);
    QGuiApplication::setFont(large);
    open();
    QGuiApplication::setFont(usual);
    EXPECT_EQ(window().width(), 690);
    EXPECT_EQ(item("versionText")->property("font").value<QFont>().pixelSize(), 20);
}

} // namespace
} // namespace brellowind
