// SPDX-License-Identifier: MIT

#include "pictures/KeptPicture.h"
#include "settings/SettingsRouter.h"
#include "settings/window/SettingsWindow.h"
#include "support/SettingsParts.h"

#include <QCoreApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

using platform::HttpResponse;

/// The settings window on a machine of the test's own, in any state.
class SettingsPictures : public testing::Test {
protected:
    explicit SettingsPictures(
        const platform::ProductConstants& constants = TestMachine().constants) {
        machine.constants = constants;
        machine.loginItem.current = platform::LoginItem::Status::enabled;
        settings.open();
        machine.mainLoop.runTurns(); // the check of the General tab is under way
    }

    void answer(platform::HttpResult result) {
        machine.http.answer(machine.http.requests.size() - 1, std::move(result));
        machine.mainLoop.runTurns();
    }

    void focus(const char* item) {
        settings.window()
            ->contentItem()
            ->findChild<QQuickItem*>(QString::fromLatin1(item))
            ->forceActiveFocus(Qt::TabFocusReason);
    }

    void expectLook(const char* name) {
        QCoreApplication::processEvents();
        expectKept(settings.window()->grabWindow().convertToFormat(QImage::Format_RGB32),
                   QStringLiteral("settings-") + QString::fromLatin1(name));
    }

    TestMachine machine;
    SettingsParts parts{machine};
    SettingsWindow settings{parts.services()};
};

class SettingsPicturesWithoutAddresses : public SettingsPictures {
protected:
    SettingsPicturesWithoutAddresses() : SettingsPictures(constantsWithoutAddresses()) {}
};

TEST_F(SettingsPicturesWithoutAddresses, General) {
    expectLook("without-addresses");
}

TEST_F(SettingsPicturesWithoutAddresses, About) {
    parts.router.setSelectedTab(SettingsTab::about);
    machine.mainLoop.runTurns();
    expectLook("about-without-addresses");
}

TEST_F(SettingsPictures, UpdateAvailable) {
    answer(HttpResponse{200, R"({"version": "1.2", "url": "http://a"})"});
    expectLook("available");
}

TEST_F(SettingsPictures, CheckFailed) {
    answer(platform::TransportError{"no route"});
    expectLook("failed");
}

TEST_F(SettingsPictures, KeyboardOnTheSwitch) {
    answer(HttpResponse{200, R"({"version": "1.0", "url": "http://a"})"});
    focus("launchAtLogin");
    expectLook("keyboard-on-switch");
}

TEST_F(SettingsPictures, About) {
    parts.router.setSelectedTab(SettingsTab::about);
    machine.mainLoop.runTurns();
    expectLook("about");
}

class SettingsPicturesAt2x : public SettingsPictures {};

TEST_F(SettingsPicturesAt2x, General) {
    answer(HttpResponse{200, R"({"version": "1.0", "url": "http://a"})"});
    expectLook("up-to-date");
}

TEST_F(SettingsPicturesAt2x, About) {
    parts.router.setSelectedTab(SettingsTab::about);
    machine.mainLoop.runTurns();
    expectLook("about");
}

} // namespace
} // namespace brellowind::test
