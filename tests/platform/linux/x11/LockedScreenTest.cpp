// SPDX-License-Identifier: MIT

#include "platform/linux/x11/PillOnX11.h"

#include <QDBusMessage>

namespace brellowind::test {
namespace {

class LockedScreen : public PillOnX11 {
protected:
    void announce(bool active) {
        auto signal = QDBusMessage::createSignal(QStringLiteral("/org/gnome/ScreenSaver"),
                                                 QStringLiteral("org.gnome.ScreenSaver"),
                                                 QStringLiteral("ActiveChanged"));
        signal << active;
        EXPECT_TRUE(bus.connection().send(signal));
    }
};

TEST_F(LockedScreen, HidesThePillWhileTheServersScreenSaverIsActive) {
    show();
    x.setScreenSaverActive(true);
    EXPECT_TRUE(waitUntil([this] { return !isShown(); }));
    x.setScreenSaverActive(false);
    EXPECT_TRUE(waitUntil([this] { return isShown(); }));
    EXPECT_EQ(x.geometry(id()), windowPixels);
    EXPECT_EQ(input(), QRegion(pillInWindow));
}

TEST_F(LockedScreen, HidesThePillWhileTheDesktopsScreenSaverIsActive) {
    show();
    announce(true);
    EXPECT_TRUE(waitUntil([this] { return !isShown(); }));
    announce(false);
    EXPECT_TRUE(waitUntil([this] { return isShown(); }));
    EXPECT_EQ(x.stack().back(), id());
}

TEST_F(LockedScreen, HidesThePillUntilBothAreInactive) {
    show();
    announce(true);
    x.setScreenSaverActive(true);
    ASSERT_TRUE(waitUntil([this] { return !isShown(); }));
    announce(false);
    ASSERT_TRUE(waitUntil([this] { return !lock.isLocked(); }));
    EXPECT_FALSE(isShown());
    x.setScreenSaverActive(false);
    EXPECT_TRUE(waitUntil([this] { return isShown(); }));
}

TEST_F(LockedScreen, ShowsNoPillThatIsOrderedInFrontMeanwhile) {
    announce(true);
    ASSERT_TRUE(waitUntil([this] { return lock.isLocked(); }));
    overlay.setFrame({440, 500, 400, 300});
    setOutline(pillInWindow);
    overlay.orderFrontRegardless();
    react();
    EXPECT_FALSE(isShown());
    announce(false);
    EXPECT_TRUE(waitUntil([this] { return isShown(); }));
}

TEST_F(LockedScreen, ShowsNoPillThatWasNeverOrderedInFront) {
    window.create();
    announce(true);
    ASSERT_TRUE(waitUntil([this] { return lock.isLocked(); }));
    announce(false);
    ASSERT_TRUE(waitUntil([this] { return !lock.isLocked(); }));
    runFor(std::chrono::milliseconds(100));
    EXPECT_FALSE(isShown());
}

} // namespace
} // namespace brellowind::test
