// SPDX-License-Identifier: MIT

#include "platform/linux/BusCall.h"

#include <QDBusPendingCallWatcher>
#include <utility>

namespace brellowind::platform {
namespace {

constexpr int longestErrorText = 1000;

} // namespace

QDBusMessage methodCall(const QString& service, const QString& path, const QString& interface,
                        const char* method, const QVariantList& arguments) {
    auto message =
        QDBusMessage::createMethodCall(service, path, interface, QString::fromLatin1(method));
    message.setAutoStartService(false);
    message.setArguments(arguments);
    return message;
}

std::string errorText(const QDBusMessage& error) {
    return (error.errorName() + QStringLiteral(": ") + error.errorMessage().left(longestErrorText))
        .toStdString();
}

BusCall::BusCall(const QDBusConnection& bus, const QDBusMessage& call, int timeoutMs,
                 Answered answered)
    : watcher_(new QDBusPendingCallWatcher(bus.asyncCall(call, timeoutMs))) {
    QObject::connect(watcher_, &QDBusPendingCallWatcher::finished, watcher_,
                     [this, answered = std::move(answered)] {
                         auto* finished = std::exchange(watcher_, nullptr);
                         finished->deleteLater(); // the sender of this signal
                         answered(finished->reply());
                     });
}

BusCall::~BusCall() {
    delete watcher_;
}

} // namespace brellowind::platform
