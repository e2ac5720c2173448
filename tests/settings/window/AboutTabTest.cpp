// SPDX-License-Identifier: MIT

#include "settings/SettingsRouter.h"
#include "settings/window/SettingsFixture.h"

namespace brellowind {
namespace {

using testing::ElementsAre;

class AboutTabTest : public SettingsFixture {
protected:
    void openAbout() {
        parts.router.setSelectedTab(SettingsTab::about);
        open();
    }
};

TEST_F(AboutTabTest, SaysWhatTheProgramIs) {
    openAbout();
    EXPECT_THAT(visibleTexts(),
                ElementsAre("General", "About", "Brellowind", "Version 1.0",
                            "Lyrics that live in your notch", "Visit our website", "Follow on X",
                            "© brellowind.example", "Privacy Policy", "·", "Terms of Use"));
}

TEST_F(AboutTabTest, LinksOpenTheirPages) {
    openAbout();
    const std::pair<const char*, const char*> links[] = {
        {"Visit our website", "https://brellowind.example"},
        {"Follow on X", "https://social.example/brellowind"},
        {"Privacy Policy", "https://brellowind.example/privacy"},
        {"Terms of Use", "https://brellowind.example/terms"},
    };
    for (const auto& [text, url] : links) {
        machine.links.opened.clear();
        auto* link = pressable(QString::fromLatin1(text));
        click(link);
        EXPECT_THAT(machine.links.opened, ElementsAre(url)) << text;
        EXPECT_EQ(accessible(link)->role(), QAccessible::Link) << text;
        EXPECT_EQ(accessible(link)->text(QAccessible::Name).toStdString(), text);
    }
}

TEST_F(AboutTabTest, LeavesOutThePagesThatThereAreNot) {
    auto& constants = machine.constants;
    constants.socialURL.clear();
    constants.privacyPolicyURL.clear();
    openAbout();
    EXPECT_THAT(visibleTexts(), ElementsAre("General", "About", "Brellowind", "Version 1.0",
                                            "Lyrics that live in your notch", "Visit our website",
                                            "© brellowind.example", "Terms of Use"));
}

TEST_F(AboutTabTest, ShowsTheVersionAloneInABuildWithoutAddresses) {
    machine.constants = test::constantsWithoutAddresses();
    openAbout();
    EXPECT_THAT(visibleTexts(), ElementsAre("General", "About", "Brellowind", "Version 1.0",
                                            "Lyrics that live in your notch"));
}

TEST_F(AboutTabTest, EverythingFitsBetweenTheEdges) {
    machine.constants.legalNotice = "© " + std::string(400, 'm');
    openAbout();
    const QRectF page(0, 0, window().width(), window().height());
    for (auto* found : window().contentItem()->findChildren<QQuickItem*>()) {
        if (found->isVisible() && found->inherits("QQuickText")) {
            EXPECT_TRUE(page.contains(found->mapRectToScene(found->boundingRect())))
                << found->property("text").toString().toStdString();
        }
    }
}

} // namespace
} // namespace brellowind
