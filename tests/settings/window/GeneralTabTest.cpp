// SPDX-License-Identifier: MIT

#include "settings/window/SettingsFixture.h"

#include <QTest>
#include <cmath>
#include <stdexcept>

namespace brellowind {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using Status = platform::LoginItem::Status;

class GeneralTabTest : public SettingsFixture {
protected:
    bool isSwitchOn() { return accessible(item("launchAtLogin"))->state().checked; }

    static QQuickItem* part(const QQuickItem* button, const char* type) {
        for (auto* child : button->childItems()) {
            if (child->inherits(type) && child->isVisible()) // not the focus ring
                return child;
        }
        throw std::runtime_error(std::string("a button without ") + type);
    }

    static QColor fill(const QQuickItem* button) {
        return part(button, "QQuickRectangle")->property("color").value<QColor>();
    }
};

TEST_F(GeneralTabTest, SaysWhatItDoes) {
    open();
    answerVersion("1.0");
    EXPECT_THAT(visibleTexts(), ElementsAre("General", "About", "Up to date", "ver-1.0",
                                            "Check update", "Launch at Login", "Support",
                                            "Send Feedback", "Quit", "Quit Brellowind"));
}

TEST_F(GeneralTabTest, NeitherChecksNorTakesFeedbackInABuildWithoutAddresses) {
    machine.constants = test::constantsWithoutAddresses();
    open();
    EXPECT_THAT(visibleTexts(), ElementsAre("General", "About", "ver-1.0", "Launch at Login",
                                            "Quit", "Quit Brellowind"));
    EXPECT_THAT(machine.http.requests, IsEmpty());
    EXPECT_THAT(machine.log.lines, IsEmpty());
}

TEST_F(GeneralTabTest, TheSwitchTurnsLaunchAtLoginOnAndOff) {
    open();
    EXPECT_FALSE(isSwitchOn());
    click(pressable(QStringLiteral("Launch at Login")));
    EXPECT_TRUE(isSwitchOn());
    EXPECT_EQ(machine.loginItem.current, Status::enabled);
    click(pressable(QStringLiteral("Launch at Login")));
    EXPECT_FALSE(isSwitchOn());
    EXPECT_EQ(machine.loginItem.current, Status::notRegistered);
    EXPECT_THAT(machine.loginItem.attempts, ElementsAre("register", "unregister"));
}

TEST_F(GeneralTabTest, TheSwitchIsDrawnAsItStands) {
    open();
    auto* track = item("switchTrack");
    const auto knobEnd = [&] {
        const auto* knob = track->childItems().first();
        return knob->x() + knob->width();
    };
    const QColor off = track->property("color").value<QColor>();
    EXPECT_LT(knobEnd(), track->width() / 2 + 2);
    click(track);
    EXPECT_NE(track->property("color").value<QColor>(), off);
    EXPECT_TRUE(QTest::qWaitFor([&] { return knobEnd() == track->width() - 2; }));
}

TEST_F(GeneralTabTest, TheSwitchTurnsBackWhenTheRegistrationFails) {
    machine.loginItem.registrationError = "the folder is read-only";
    open();
    click(pressable(QStringLiteral("Launch at Login")));
    EXPECT_FALSE(isSwitchOn());
    EXPECT_THAT(machine.log.lines, ElementsAre("Launch-at-login error: the folder is read-only"));
    machine.loginItem.registrationError.reset();
    click(pressable(QStringLiteral("Launch at Login")));
    EXPECT_TRUE(isSwitchOn());
}

TEST_F(GeneralTabTest, SaysBesideTheSwitchWhyItCouldNotBeChanged) {
    machine.loginItem.registrationError = "the folder is read-only";
    open();
    EXPECT_THAT(visibleTexts(), Not(Contains("the folder is read-only")));
    click(pressable(QStringLiteral("Launch at Login")));
    EXPECT_THAT(visibleTexts(), Contains("the folder is read-only"));
    EXPECT_EQ(accessible(item("launchAtLogin"))->text(QAccessible::Description),
              QStringLiteral("the folder is read-only"));
    machine.loginItem.registrationError.reset();
    click(pressable(QStringLiteral("Launch at Login")));
    EXPECT_THAT(visibleTexts(), Not(Contains("the folder is read-only")));
}

TEST_F(GeneralTabTest, WrapsALongReasonWithinTheRow) {
    machine.loginItem.registrationError = std::string(40, 'x') + ' ' + std::string(80, 'y');
    open();
    const double before = item("launchAtLogin")->height();
    click(pressable(QStringLiteral("Launch at Login")));
    const auto* reason = item("switchError");
    EXPECT_TRUE(QTest::qWaitFor([&] { return item("launchAtLogin")->height() > before; }));
    EXPECT_LT(reason->height(), item("launchAtLogin")->height());
    EXPECT_GT(item("switchTrack")->mapToScene({0, 0}).x(),
              reason->mapToScene({reason->width(), 0}).x());
}

TEST_F(GeneralTabTest, FeedbackBeginsAMessageToTheMaker) {
    open();
    click(pressable(QStringLiteral("Send Feedback")));
    EXPECT_THAT(machine.links.opened,
                ElementsAre("mailto:feedback@brellowind.example?subject=Brellowind%20Feedback"));
}

TEST_F(GeneralTabTest, QuitEndsTheProgram) {
    open();
    EXPECT_EQ(machine.mainLoop.quits, 0);
    click(pressable(QStringLiteral("Quit Brellowind")));
    EXPECT_EQ(machine.mainLoop.quits, 1);
}

TEST_F(GeneralTabTest, ButtonsAreSoftAndLightUpWhilePressed) {
    open();
    auto* button = pressable(QStringLiteral("Quit Brellowind"));
    const auto* label = part(button, "QQuickText");
    const QFont font = label->property("font").value<QFont>();
    EXPECT_EQ(font.pixelSize(), 14);
    EXPECT_EQ(font.weight(), QFont::DemiBold);
    EXPECT_EQ(label->property("color").value<QColor>(), QColor(Qt::white));
    EXPECT_EQ(label->x(), 12);
    EXPECT_EQ(label->y(), 8);
    EXPECT_EQ(button->width(), std::ceil(label->implicitWidth()) + 24);
    EXPECT_EQ(button->height(), std::ceil(label->implicitHeight()) + 16);
    EXPECT_EQ(part(button, "QQuickRectangle")->property("radius"), 8);

    EXPECT_EQ(fill(button), QColor::fromRgbF(1, 1, 1, 0.09F));
    const QPoint middle = button->mapToScene({button->width() / 2, button->height() / 2}).toPoint();
    QTest::mousePress(&window(), Qt::LeftButton, {}, middle);
    EXPECT_EQ(fill(button), QColor::fromRgbF(1, 1, 1, 0.16F));
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, middle + QPoint(0, 60));
    EXPECT_EQ(fill(button), QColor::fromRgbF(1, 1, 1, 0.09F));
    EXPECT_EQ(machine.mainLoop.quits, 0) << "released elsewhere";
}

TEST_F(GeneralTabTest, EveryButtonDimsSmoothlyUnderThePointer) {
    open();
    answerVersion("1.0");
    for (const auto* text : {"Check update", "Send Feedback", "Quit Brellowind"}) {
        auto* button = pressable(QString::fromLatin1(text));
        EXPECT_EQ(button->opacity(), 1);
        moveTo(button);
        EXPECT_GT(button->opacity(), 0.7) << text;
        EXPECT_TRUE(QTest::qWaitFor([&] { return button->opacity() == 0.7; })) << text;
        moveTo(item("stateTitle"));
        EXPECT_LT(button->opacity(), 1) << text;
        EXPECT_TRUE(QTest::qWaitFor([&] { return button->opacity() == 1; })) << text;
    }
}

TEST_F(GeneralTabTest, TheUpdateButtonStaysDimmedUnderThePointerWhileItCannotBePressed) {
    open();
    auto* button = item("updateButton");
    ASSERT_FALSE(button->isEnabled());
    moveTo(button);
    EXPECT_TRUE(QTest::qWaitFor([&] { return button->opacity() == 0.7; }));
}

} // namespace
} // namespace brellowind
