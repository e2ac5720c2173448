// SPDX-License-Identifier: MIT

#include "e2e/Observer.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <gtest/gtest.h>
#include <utility>

namespace brellowind::test {

Observer::Observer(QDBusConnection bus, QString path, QString interface)
    : bus_(std::move(bus)), path_(std::move(path)), interface_(std::move(interface)) {}

QVariant Observer::ask(const char* method, const QVariantList& arguments) const {
    auto question = QDBusMessage::createMethodCall(QStringLiteral("org.brellowind.Observed"), path_,
                                                   interface_, QString::fromLatin1(method));
    question.setArguments(arguments);
    const auto reply = bus_.call(question);
    EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << qPrintable(reply.errorMessage());
    const QVariant answer = reply.arguments().value(0);
    return answer.userType() == qMetaTypeId<QDBusVariant>() ? answer.value<QDBusVariant>().variant()
                                                            : answer;
}

std::optional<QRectF> Observer::rectangle(const char* method, const QVariantList& arguments) const {
    const auto numbers = qdbus_cast<QList<double>>(ask(method, arguments));
    if (numbers.size() != 4)
        return std::nullopt;
    return QRectF(numbers[0], numbers[1], numbers[2], numbers[3]);
}

} // namespace brellowind::test
