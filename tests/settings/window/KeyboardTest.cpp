// SPDX-License-Identifier: MIT

#include "settings/SettingsRouter.h"
#include "settings/window/SettingsFixture.h"

namespace brellowind {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SettingsKeyboardTest : public SettingsFixture {
protected:
    std::vector<std::string> tabThrough(int stops, Qt::KeyboardModifiers modifiers = {}) {
        std::vector<std::string> names;
        for (int stop = 0; stop < stops; ++stop) {
            press(modifiers ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
            names.push_back(focused());
            EXPECT_TRUE(hasFocusRing(window().activeFocusItem())) << names.back();
        }
        return names;
    }

    void tabTo(const std::string& name) {
        for (int stop = 0; stop < 10 && focused() != name; ++stop)
            press(Qt::Key_Tab);
        ASSERT_EQ(focused(), name);
    }
};

TEST_F(SettingsKeyboardTest, TabGoesThroughTheGeneralTabFromTopToBottom) {
    open();
    answerVersion("1.0");
    EXPECT_THAT(tabThrough(6), ElementsAre("General", "Check update", "Launch at Login",
                                           "Send Feedback", "Quit Brellowind", "General"));
    EXPECT_THAT(tabThrough(2, Qt::ShiftModifier), ElementsAre("Quit Brellowind", "Send Feedback"));
}

TEST_F(SettingsKeyboardTest, TabGoesThroughTheAboutTabFromTopToBottom) {
    parts.router.setSelectedTab(SettingsTab::about);
    open();
    EXPECT_THAT(tabThrough(6), ElementsAre("About", "Visit our website", "Follow on X",
                                           "Privacy Policy", "Terms of Use", "About"));
}

TEST_F(SettingsKeyboardTest, TabPassesOverAButtonThatCannotBePressed) {
    open();
    EXPECT_THAT(tabThrough(2), ElementsAre("General", "Launch at Login"));
}

TEST_F(SettingsKeyboardTest, AnAssistiveProgramSelectsATabByFocusingIt) {
    open();
    auto* tab = accessible(item("aboutTab"));
    tab->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    turn();
    EXPECT_EQ(parts.router.selectedTab.get(), SettingsTab::about);
    EXPECT_TRUE(item("aboutTab")->hasActiveFocus());
}

TEST_F(SettingsKeyboardTest, TheListOfTabsHasAName) {
    open();
    auto* list = accessible(item("aboutTab"))->parent();
    EXPECT_EQ(list->role(), QAccessible::PageTabList);
    EXPECT_EQ(list->text(QAccessible::Name), QStringLiteral("Settings"));
}

TEST_F(SettingsKeyboardTest, LeftAndRightGoFromTabToTab) {
    open();
    tabTo("General");
    press(Qt::Key_Right);
    EXPECT_EQ(parts.router.selectedTab.get(), SettingsTab::about);
    EXPECT_TRUE(item("aboutPage")->isVisible());
    EXPECT_EQ(focused(), "About");
    EXPECT_TRUE(hasFocusRing(item("aboutTab")));
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), "About");
    press(Qt::Key_Left);
    EXPECT_EQ(parts.router.selectedTab.get(), SettingsTab::general);
    EXPECT_EQ(focused(), "General");
    press(Qt::Key_Left);
    EXPECT_EQ(focused(), "General");
}

TEST_F(SettingsKeyboardTest, FollowsTheRouterFromTabToTab) {
    open();
    tabTo("General");
    parts.router.setSelectedTab(SettingsTab::about);
    turn();
    EXPECT_EQ(focused(), "About");
    EXPECT_TRUE(hasFocusRing(item("aboutTab")));
    EXPECT_FALSE(hasFocusRing(item("generalTab")));
}

TEST_F(SettingsKeyboardTest, SpaceAndEnterPress) {
    open();
    tabTo("Quit Brellowind");
    press(Qt::Key_Space);
    EXPECT_EQ(machine.mainLoop.quits, 1);
    press(Qt::Key_Return);
    EXPECT_EQ(machine.mainLoop.quits, 2);
    press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(machine.mainLoop.quits, 3);
}

TEST_F(SettingsKeyboardTest, SpaceTurnsTheSwitch) {
    open();
    tabTo("Launch at Login");
    press(Qt::Key_Space);
    EXPECT_THAT(machine.loginItem.attempts, ElementsAre("register"));
    EXPECT_TRUE(accessible(item("launchAtLogin"))->state().checked);
}

TEST_F(SettingsKeyboardTest, KeepsItsPlaceWhileTheUpdateButtonCannotBePressed) {
    open();
    answerVersion("1.0");
    tabTo("Check update");
    press(Qt::Key_Space);
    ASSERT_FALSE(item("updateButton")->isEnabled());
    answer(platform::TransportError{"no route"});
    EXPECT_EQ(focused(), "Try again");
    EXPECT_TRUE(hasFocusRing(item("updateButton")));
}

TEST_F(SettingsKeyboardTest, ThePointerLeavesNoFocusRing) {
    open();
    auto* button = pressable(QStringLiteral("Send Feedback"));
    click(button);
    EXPECT_FALSE(hasFocusRing(button));
}

TEST_F(SettingsKeyboardTest, EscapeCloses) {
    open();
    tabTo("Launch at Login");
    press(Qt::Key_Escape);
    EXPECT_EQ(settings.window(), nullptr);
}

TEST_F(SettingsKeyboardTest, ControlWCloses) {
    open();
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(settings.window(), nullptr);
}

TEST_F(SettingsKeyboardTest, NothingElseCloses) {
    open();
    press(Qt::Key_W);
    press(Qt::Key_Return);
    EXPECT_TRUE(window().isVisible());
}

TEST_F(SettingsKeyboardTest, ScreenReadersHearWhatCanBePressed) {
    open();
    const std::pair<const char*, QAccessible::Role> roles[] = {
        {"General", QAccessible::PageTab},      {"About", QAccessible::PageTab},
        {"Checking…", QAccessible::Button},     {"Launch at Login", QAccessible::CheckBox},
        {"Send Feedback", QAccessible::Button}, {"Quit Brellowind", QAccessible::Button},
    };
    for (const auto& [text, role] : roles) {
        auto* const button = pressable(QString::fromUtf8(text));
        auto* interface = accessible(button);
        EXPECT_EQ(interface->role(), role) << text;
        EXPECT_EQ(interface->text(QAccessible::Name).toStdString(), text);
        // From Qt 6.8 on a disabled button is not focusable.
        EXPECT_TRUE(interface->state().focusable || !button->isEnabled()) << text;
    }
    EXPECT_TRUE(accessible(item("generalTab"))->state().selected);
    EXPECT_FALSE(accessible(item("aboutTab"))->state().selected);
    EXPECT_TRUE(accessible(item("launchAtLogin"))->state().checkable);
}

TEST_F(SettingsKeyboardTest, ScreenReadersCanPress) {
    open();
    for (const auto* text : {"Quit Brellowind", "Launch at Login", "About"}) {
        auto* actions = accessible(pressable(QString::fromLatin1(text)))->actionInterface();
        ASSERT_NE(actions, nullptr) << text;
        const QStringList names = actions->actionNames();
        const QString press = QAccessibleActionInterface::pressAction();
        const QString toggle = QAccessibleActionInterface::toggleAction();
        actions->doAction(names.contains(press) ? press : toggle);
        turn();
    }
    EXPECT_EQ(machine.mainLoop.quits, 1);
    EXPECT_THAT(machine.loginItem.attempts, ElementsAre("register"));
    EXPECT_TRUE(item("aboutPage")->isVisible());
}

TEST_F(SettingsKeyboardTest, ScreenReadersCannotPressWhatIsDisabled) {
    open();
    auto* button = pressable(QStringLiteral("Quit Brellowind"));
    auto* actions = accessible(button)->actionInterface();
    button->setEnabled(false);
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(machine.mainLoop.quits, 0);
    button->setEnabled(true);
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(machine.mainLoop.quits, 1);
}

} // namespace
} // namespace brellowind
