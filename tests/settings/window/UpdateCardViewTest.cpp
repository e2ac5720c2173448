// SPDX-License-Identifier: MIT

#include "settings/window/SettingsFixture.h"

#include <QImage>
#include <QTest>

namespace brellowind {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The expected content of the card in one state.
struct Look {
    const char* icon; ///< empty: the progress indicator
    const char* title;
    const char* version;
    const char* button;
    bool enabled;
    int firstHue, lastHue; ///< degrees, range of the state's colour
    double tintOpacity;
};

class UpdateCardViewTest : public SettingsFixture {
protected:
    std::string text(const char* name) {
        return item(name)->property("text").toString().toStdString();
    }

    QColor color(const char* name) { return item(name)->property("color").value<QColor>(); }

    void expectLook(const Look& look) {
        const bool progress = !*look.icon;
        EXPECT_EQ(item("stateProgress")->isVisible(), progress);
        EXPECT_EQ(item("stateIcon")->isVisible(), !progress);
        EXPECT_EQ(item("stateIcon")->property("name").toString().toStdString(), look.icon);
        EXPECT_EQ(text("stateTitle"), look.title);
        EXPECT_EQ(text("versionText"), look.version);
        EXPECT_EQ(text("updateButton"), look.button);
        EXPECT_EQ(item("updateButton")->isEnabled(), look.enabled);

        const QColor ink = color(progress ? "stateProgress" : "stateIcon");
        EXPECT_EQ(ink.alphaF(), 1.0F);
        EXPECT_GE(ink.hue(), look.firstHue);
        EXPECT_LE(ink.hue(), look.lastHue);
        const QColor tint = color("updateCard");
        EXPECT_EQ(QColor::fromRgb(tint.rgb()), QColor::fromRgb(ink.rgb()));
        EXPECT_NEAR(tint.alphaF(), look.tintOpacity, 1e-4);

        auto* card = accessible(item("updateCard"));
        EXPECT_EQ(card->role(), QAccessible::Grouping);
        EXPECT_EQ(card->text(QAccessible::Name).toStdString(), look.title);
        EXPECT_EQ(card->text(QAccessible::Description).toStdString(), look.version);
        auto* button = accessible(item("updateButton"));
        EXPECT_EQ(button->role(), QAccessible::Button);
        EXPECT_EQ(button->text(QAccessible::Name).toStdString(), look.button);
    }
};

const Look upToDate{
    "checkmark.circle.fill", "Up to date", "ver-1.0", "Check update", true, 100, 150, 0.12};
const Look checking{"", "Checking for updates", "ver-1.0", "Checking…", false, 170, 200, 0.12};
const Look failed{
    "exclamationmark.circle.fill", "Update check failed", "ver-1.0", "Try again", true, 0, 15, 0.1};
const Look available{"arrow.down.circle.fill",
                     "Update Available",
                     "ver-1.0  →  ver-1.2",
                     "Download update",
                     true,
                     45,
                     60,
                     0.1};

TEST_F(UpdateCardViewTest, LooksUpToDateBeforeAnyCheckHasBegun) {
    settings.open(); // before the check runs
    expectLook(upToDate);
}

TEST_F(UpdateCardViewTest, FollowsTheCheckerFromStateToState) {
    open();
    answerVersion("1.2");
    expectLook(available);
    click(pressable(QStringLiteral("About")));
    click(pressable(QStringLiteral("General")));
    expectLook(checking);
    answer(platform::HttpResponse{404, "<html>"});
    expectLook(failed);
}

TEST_F(UpdateCardViewTest, TheButtonDownloadsAnAvailableReleaseInsteadOfChecking) {
    open();
    answerVersion("1.2");
    click(pressable(QStringLiteral("Download update")));
    EXPECT_THAT(machine.links.opened, ElementsAre("https://brellowind.example/get"));
    EXPECT_EQ(machine.http.requests.size(), 1U);
    expectLook(available);
}

TEST_F(UpdateCardViewTest, TheButtonChecksWhenUpToDate) {
    open();
    answerVersion("1.0");
    expectLook(upToDate);
    click(pressable(QStringLiteral("Check update")));
    EXPECT_EQ(machine.http.requests.size(), 2U);
    expectLook(checking);
}

TEST_F(UpdateCardViewTest, TheButtonTriesAgainAfterAFailure) {
    open();
    answer(platform::TransportError{"no route"});
    click(pressable(QStringLiteral("Try again")));
    EXPECT_EQ(machine.http.requests.size(), 2U);
    expectLook(checking);
    answerVersion("1.2");
    expectLook(available);
}

TEST_F(UpdateCardViewTest, TheButtonCannotBePressedWhileChecking) {
    open();
    auto* button = pressable(QStringLiteral("Checking…"));
    click(button);
    button->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    press(Qt::Key_Return);
    EXPECT_EQ(machine.http.requests.size(), 1U);
    EXPECT_THAT(machine.links.opened, IsEmpty());
}

TEST_F(UpdateCardViewTest, ShowsVersionsVerbatim) {
    machine.constants.version = "0";
    open();
    answerVersion("<b>2</b>&amp;");
    EXPECT_EQ(item("versionText")->property("textFormat").toInt(), 0) << "plain text";
    EXPECT_EQ(text("versionText"), "ver-0  →  ver-<b>2</b>&amp;");
}

TEST_F(UpdateCardViewTest, ALongVersionDoesNotRunIntoTheButton) {
    open();
    answerVersion("2" + std::string(300, '0'));
    const auto* version = item("versionText");
    const auto* button = item("updateButton");
    EXPECT_TRUE(version->property("truncated").toBool());
    EXPECT_LE(version->mapToScene({version->width(), 0}).x(), button->mapToScene({}).x());
    EXPECT_EQ(window().width(), 460);
}

TEST_F(UpdateCardViewTest, TheProgressIndicatorGoesRoundWhileItCanBeSeen) {
    open();
    auto* progress = item("stateProgress");
    const int step = progress->property("step").toInt();
    EXPECT_TRUE(QTest::qWaitFor([&] { return progress->property("step").toInt() > step + 1; }));
    answerVersion("1.0");
    const int last = progress->property("step").toInt();
    QTest::qWait(250); // more than two steps
    EXPECT_EQ(progress->property("step").toInt(), last);
}

TEST_F(UpdateCardViewTest, IsDrawnInItsTint) {
    open();
    answerVersion("1.2");
    const auto at = [&](const QImage& picture, QPointF point) {
        return picture.pixelColor((point * window().effectiveDevicePixelRatio()).toPoint());
    };
    const QImage picture = window().grabWindow();
    const QColor ground = at(picture, {5, window().height() - 5.0});
    const QColor tint = at(picture, item("updateCard")->mapToScene({60, 6}));
    const QColor ink = color("stateIcon");
    EXPECT_NEAR(tint.red(), 0.9 * ground.red() + 0.1 * ink.red(), 2);
    EXPECT_NEAR(tint.green(), 0.9 * ground.green() + 0.1 * ink.green(), 2);
    EXPECT_NEAR(tint.blue(), 0.9 * ground.blue() + 0.1 * ink.blue(), 2);
    EXPECT_EQ(at(picture, item("stateIcon")->mapToScene({4, 10})), ink);
}

} // namespace
} // namespace brellowind
