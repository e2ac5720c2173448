// SPDX-License-Identifier: MIT

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

/// A settings window on a fake machine, operated by input events.
class SettingsFixture : public testing::Test {
protected:
    /// Opens the window and waits until it is active.
    void open();

    /// Processes pending work of the machine and of the window.
    void turn();

    /// Completes the last transfer.
    void answer(platform::HttpResult result);
    void answerVersion(const std::string& version);

    QQuickWindow& window() { return *settings.window(); }

    /// The item with this object name; fails the test if there is none.
    QQuickItem* item(const char* name);

    /// The visible button, link, switch or tab with this text.
    QQuickItem* pressable(const QString& text);

    /// All visible texts, from top to bottom and left to right.
    std::vector<std::string> visibleTexts();

    void click(QQuickItem* item);
    void moveTo(QQuickItem* item);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// The accessible name of the focused item; empty without focus.
    std::string focused();

    /// Whether a focus ring is visible on `item`.
    static bool hasFocusRing(const QQuickItem* item);

    static QAccessibleInterface* accessible(QQuickItem* item);

    test::TestMachine machine;
    test::SettingsParts parts{machine};
    SettingsWindow settings{parts.services()};
};

} // namespace brellowind
