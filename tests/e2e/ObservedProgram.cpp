// SPDX-License-Identifier: MIT

#include "e2e/ObservedProgram.h"

#include "session/EventLoop.h"

#include <QDBusArgument>
#include <QElapsedTimer>
#include <QFile>
#include <cstdio>
#include <gtest/gtest.h>
#include <utility>

namespace brellowind::test {
namespace {

const auto programFile = QStringLiteral(BRELLOWIND_OBSERVED_PROGRAM);
const auto pillPath = QStringLiteral("/pill");
const auto pillInterface = QStringLiteral("org.brellowind.Pill");

constexpr std::chrono::milliseconds stillness{
    250}; ///< longer than any spring pauses at a turning point

} // namespace

ObservedProgram::ObservedProgram(ProgramSession session, const QString& origin)
    : session_(std::move(session)), arguments_{origin},
      pill_(session_.bus, pillPath, pillInterface),
      loop_(session_.bus, QStringLiteral("/loop"), QStringLiteral("org.brellowind.Loop")),
      settings_(session_.bus), process_(session_.start(programFile, arguments_)) {
    EXPECT_TRUE(session_.bus.connect(QString(), pillPath, pillInterface,
                                     QStringLiteral("TextChanged"), this,
                                     SLOT(textChanged(QString))));
    EXPECT_EQ(process_->readLine(), QStringLiteral("ready"));
    const QString first = pill_.ask("Text", {QStringLiteral("lyricLine")}).toString();
    if (texts_.isEmpty())
        texts_.append(first);
}

ObservedProgram::~ObservedProgram() {
    process_->end();
    for (const QString& line : errors())
        std::fprintf(stderr, "%s\n", qPrintable(line));
}

int ObservedProgram::startAgain() {
    return session_.start(programFile, arguments_)->finish();
}

QStringList ObservedProgram::errors() const {
    QFile file(session_.errorFile);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
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
        // Before the question, so that a delay of this process counts for nothing.
        const bool isLongEnough = since.isValid() && since.elapsed() >= stillness.count();
        const QRectF now = rectangle("pill");
        const bool isStill = now == std::exchange(seen, now);
        if (!isStill || !since.isValid())
            since.start();
        return isStill && isLongEnough;
    });
}

QSizeF ObservedProgram::size(const char* item) {
    const auto numbers = qdbus_cast<QList<double>>(pill_.ask("Size", {latin1(item)}));
    EXPECT_EQ(numbers.size(), 2) << item;
    return {numbers.value(0), numbers.value(1)};
}

void ObservedProgram::textChanged(const QString& text) {
    texts_.append(text);
}

QRectF ObservedProgram::rect(const char* method, const QVariantList& arguments) {
    const auto found = pill_.rectangle(method, arguments);
    EXPECT_TRUE(found) << method << " of " << qPrintable(arguments.value(0).toString());
    return found.value_or(QRectF());
}

} // namespace brellowind::test
