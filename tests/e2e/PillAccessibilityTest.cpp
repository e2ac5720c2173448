// SPDX-License-Identifier: MIT

#include "e2e/AccessibilityEvents.h"
#include "e2e/AccessibilityReader.h"
#include "e2e/PillFixture.h"

namespace brellowind::test {
namespace {

class PillAccessibility : public PillOnDesktop {
protected:
    std::optional<Accessible> waitFor(const char* name, const char* role) {
        return reader.waitFor(name, role);
    }

    AccessibilityReader reader{desktop.bus.connection(), desktop.environment()};
};

TEST_F(PillAccessibility, TheLineCanBeRead) {
    startSinging();
    EXPECT_TRUE(waitFor("line", "label"));
}

TEST_F(PillAccessibility, TheIndicatorPlaysAndPauses) {
    startSinging();
    const auto pause = waitFor("Pause", "push button");
    ASSERT_TRUE(pause);
    EXPECT_TRUE(reader.press(*pause));
    EXPECT_TRUE(waitUntil([&] { return player->status() == QStringLiteral("Paused"); }));
    const auto play = waitFor("Play", "push button");
    ASSERT_TRUE(play);
    EXPECT_TRUE(reader.press(*play));
    EXPECT_TRUE(waitUntil([&] { return player->status() == QStringLiteral("Playing"); }));
}

TEST_F(PillAccessibility, ANewNameIsToldToThoseWhoListen) {
    startSinging();
    const auto indicator = waitFor("Pause", "push button");
    ASSERT_TRUE(indicator);
    const AccessibilityEvents events(reader.bus());
    player->setStatus("Paused");
    EXPECT_TRUE(waitUntil([&] { return events.renamed().contains(indicator->path.path()); }));
}

TEST_F(PillAccessibility, TheCoverOpensThePanelAndTheGrabberClosesIt) {
    startSinging();
    const auto cover = waitFor("Show artwork", "push button");
    ASSERT_TRUE(cover);
    EXPECT_TRUE(reader.press(*cover));
    EXPECT_TRUE(program->becomes("isArtExpanded"));
    const auto grabber = waitFor("Close artwork", "push button");
    ASSERT_TRUE(grabber);
    EXPECT_TRUE(reader.press(*grabber));
    EXPECT_TRUE(program->becomes("isArtExpanded", false));
}

TEST_F(PillAccessibility, TheMenuCanBeUsed) {
    startSinging();
    openMenu();
    const auto settings = waitFor("Open Settings", "menu item");
    ASSERT_TRUE(settings);
    EXPECT_TRUE(reader.press(*settings));
    EXPECT_TRUE(waitUntil([&] { return program->settings().window() != 0; }));
}

} // namespace
} // namespace brellowind::test
