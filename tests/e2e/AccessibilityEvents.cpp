// SPDX-License-Identifier: MIT

#include "e2e/AccessibilityEvents.h"

#include <gtest/gtest.h>

namespace brellowind::test {

AccessibilityEvents::AccessibilityEvents(QDBusConnection bus) {
    EXPECT_TRUE(bus.connect(QString(), QString(), QStringLiteral("org.a11y.atspi.Event.Object"),
                            QStringLiteral("PropertyChange"), this, SLOT(take(QDBusMessage))));
    auto listen = QDBusMessage::createMethodCall(
        QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("/org/a11y/atspi/registry"),
        QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("RegisterEvent"));
    listen.setArguments({QStringLiteral("object:property-change:accessible-name")});
    EXPECT_EQ(bus.call(listen).type(), QDBusMessage::ReplyMessage);
}

void AccessibilityEvents::take(const QDBusMessage& event) {
    if (event.arguments().value(0).toString() == QStringLiteral("accessible-name"))
        renamed_.push_back(event.path());
}

} // namespace brellowind::test
