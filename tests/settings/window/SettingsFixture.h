#pragma once

#include "settings/window/SettingsWindow.h"
#include "support/SettingsParts.h"

#include <QAccessible>
#include <QColor>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace brellowind {

/// A settings window on a machine of the test's own, used as people use it.
class SettingsFixture : public testing::Test {
protected:
    /// Opens the window and waits until it is the active one.
    void open();

    /// Lets the machine, and then the window, do what is due.
    void turn();

    /// Ends the transfer that began last.
    void answer(platform::HttpResult result);
    void answerVersion(const std::string& version);

    QQuickWindow& window() { return *settings.window(); }

    /// The item of this object name; fails the test when there is none.
    QQuickItem* item(const char* name);

    /// The button, link, switch or tab that can be seen with this text.
    QQuickItem* pressable(const QString& text);

    /// All texts that can be seen, from the top down, from the left to the right.
    std::vector<std::string> visibleTexts();

    void click(QQuickItem* item);
    void moveTo(QQuickItem* item);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// The name of what the keyboard is on, as a screen reader says it; empty when on nothing.
    std::string focused();

    /// Whether a focus ring can be seen on `item`.
    static bool hasFocusRing(const QQuickItem* item);

    static QAccessibleInterface* accessible(QQuickItem* item);

    test::TestMachine machine;
    test::SettingsParts parts{machine};
    SettingsWindow settings{parts.services()};
};

} // namespace brellowind
