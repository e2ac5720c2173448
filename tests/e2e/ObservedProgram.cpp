#include "e2e/ObservedProgram.h"

#include "session/EventLoop.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QElapsedTimer>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

constexpr std::chrono::milliseconds stillness{250}; ///< longer than any spring stands at its turn

QProcessEnvironment joined(QProcessEnvironment environment, const QProcessEnvironment& more) {
    environment.insert(more);
    return environment;
}

} // namespace

ObservedProgram::ObservedProgram(const Desktop& desktop, const QString& lyricsOrigin,
                                 const QProcessEnvironment& more)
    : bus_(desktop.bus.connection()),
      process_(QStringLiteral(BRELLOWIND_OBSERVED_PROGRAM), {lyricsOrigin},
               joined(desktop.environment(), more)) {
    EXPECT_TRUE(bus_.connect(QString(), QStringLiteral("/pill"),
                             QStringLiteral("org.brellowind.Pill"), QStringLiteral("TextChanged"),
                             this, SLOT(textChanged(QString))));
    EXPECT_EQ(process_.readLine(), QStringLiteral("ready"));
    const QString first = ask("Text").toString();
    if (texts_.isEmpty())
        texts_.append(first);
}

bool ObservedProgram::shows(const QString& text) {
    return waitUntil([&] { return this->text() == text; });
}

bool ObservedProgram::becomes(const char* form, bool value) {
    return waitUntil([&] { return is(form) == value; });
}

bool ObservedProgram::comesToRest() {
    QRectF seen;
    QElapsedTimer since;
    return waitUntil([&] {
        const QRectF now = rectangle("pill");
        if (now != seen || !since.isValid())
            since.start();
        seen = now;
        return since.elapsed() >= stillness.count();
    });
}

void ObservedProgram::textChanged(const QString& text) {
    texts_.append(text);
}

QVariant ObservedProgram::ask(const char* method, const QVariantList& arguments) {
    auto question = QDBusMessage::createMethodCall(
        QStringLiteral("org.brellowind.Observed"), QStringLiteral("/pill"),
        QStringLiteral("org.brellowind.Pill"), QString::fromLatin1(method));
    question.setArguments(arguments);
    const auto reply = bus_.call(question);
    EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << qPrintable(reply.errorMessage());
    const QVariant answer = reply.arguments().value(0);
    return answer.userType() == qMetaTypeId<QDBusVariant>() ? answer.value<QDBusVariant>().variant()
                                                            : answer;
}

QRectF ObservedProgram::rect(const char* method, const QString& argument) {
    const auto numbers = qdbus_cast<QList<double>>(ask(method, {argument}));
    EXPECT_EQ(numbers.size(), 4) << method << " of " << qPrintable(argument);
    return numbers.size() == 4 ? QRectF(numbers[0], numbers[1], numbers[2], numbers[3]) : QRectF();
}

} // namespace brellowind::test
