// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantList>
#include <functional>
#include <limits>
#include <string>

class QDBusPendingCallWatcher;

namespace brellowind::platform {

/// A method call without D-Bus activation of the service.
QDBusMessage methodCall(const QString& service, const QString& path, const QString& interface,
                        const char* method, const QVariantList& arguments = {});

/// The name and the description of an error; a very long description is truncated.
std::string errorText(const QDBusMessage& error);

/// A pending method call. Destroying it discards the reply.
class BusCall {
public:
    using Answered = std::function<void(const QDBusMessage& reply)>;

    static constexpr int noTimeout = std::numeric_limits<int>::max();

    /// Sends `call`. Does not block. `answered` receives the reply or an error on a later turn of
    /// the main loop, and may destroy this object.
    BusCall(const QDBusConnection& bus, const QDBusMessage& call, int timeoutMs, Answered answered);
    BusCall(const BusCall&) = delete;
    BusCall& operator=(const BusCall&) = delete;
    ~BusCall();

private:
    QDBusPendingCallWatcher* watcher_; ///< null once answered
};

} // namespace brellowind::platform
