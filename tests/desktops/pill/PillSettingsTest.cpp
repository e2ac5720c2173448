// SPDX-License-Identifier: MIT

#include "desktops/pill/PillOnCompositor.h"

namespace brellowind::test {
namespace {

constexpr int escape = 1;

class PillSettings : public PillOnCompositor {
protected:
    const ObservedSettings& settings() { return program->settings(); }

    /// The window below the settings.
    PressLog window = PressLog::maximized(*compositor, colourBelow());

    /// Whether something as large as they are lies before the window.
    bool areInFront(const Picture& picture) {
        return picture.differing(colourBelow()).height() > 400;
    }

    void expectInFrontWithTheKeyboard(const char* name) {
        EXPECT_TRUE(waitUntil([&] { return settings().window() != 0; }));
        EXPECT_TRUE(shows(name, [&](const Picture& picture) { return areInFront(picture); }));
        EXPECT_TRUE(waitUntil([&] { return !window.hasKeyboard(); }));
        compositor->type(escape);
        EXPECT_TRUE(waitUntil([&] { return !settings().exists(); })) << "Escape closes them";
        EXPECT_TRUE(waitUntil([&] { return window.hasKeyboard(); }));
        EXPECT_FALSE(window.lines().contains(QStringLiteral("key %1").arg(escape)));
    }
};

TEST_F(PillSettings, OpenFromTheMenuInFrontWithTheKeyboard) {
    startSinging();
    choose("Open Settings");
    expectInFrontWithTheKeyboard("settings");
}

TEST_F(PillSettings, ComeToTheFrontWhenTheyAreOpenedAgain) {
    startSinging();
    choose("Open Settings");
    EXPECT_TRUE(waitUntil([&] { return settings().window() != 0; }));
    EXPECT_TRUE(shows("settings", [&](const Picture& picture) { return areInFront(picture); }));
    compositor->click({20, 700});
    EXPECT_TRUE(waitUntil([&] { return window.hasKeyboard(); }));
    choose("Open Settings");
    expectInFrontWithTheKeyboard("settings-again");
}

TEST_F(PillSettings, OpenOnASecondStartWhichEndsWithoutAFault) {
    startSinging();
    EXPECT_EQ(program->startAgain(), 0);
    EXPECT_TRUE(waitUntil([&] { return settings().window() != 0; }));
    EXPECT_TRUE(shows("settings-second-start",
                      [&](const Picture& picture) { return areInFront(picture); }));
    EXPECT_TRUE(program->process().isRunning());
    EXPECT_EQ(program->errors(), QStringList());
}

} // namespace
} // namespace brellowind::test
