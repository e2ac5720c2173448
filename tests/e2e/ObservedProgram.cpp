#include "e2e/ObservedProgram.h"

#include "session/EventLoop.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <gtest/gtest.h>

namespace brellowind::test {

ObservedProgram::ObservedProgram(const Desktop& desktop, const QString& lyricsOrigin)
    : process_(QStringLiteral(BRELLOWIND_OBSERVED_PROGRAM), {lyricsOrigin}, desktop.environment()) {
    auto bus = desktop.bus.connection();
    EXPECT_TRUE(bus.connect(QString(), QStringLiteral("/pill"),
                            QStringLiteral("org.brellowind.Pill"), QStringLiteral("TextChanged"),
                            this, SLOT(textChanged(QString))));
    EXPECT_EQ(process_.readLine(), QStringLiteral("ready"));
    const auto reply = bus.call(QDBusMessage::createMethodCall(
        QStringLiteral("org.brellowind.Observed"), QStringLiteral("/pill"),
        QStringLiteral("org.brellowind.Pill"), QStringLiteral("Text")));
    EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << qPrintable(reply.errorMessage());
    if (texts_.isEmpty())
        texts_.append(reply.arguments().value(0).toString());
}

bool ObservedProgram::shows(const QString& text) {
    return waitUntil([&] { return this->text() == text; });
}

void ObservedProgram::textChanged(const QString& text) {
    texts_.append(text);
}

} // namespace brellowind::test
