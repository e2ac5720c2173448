#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantList>
#include <functional>
#include <limits>
#include <string>

class QDBusPendingCallWatcher;

namespace brellowind::platform {

/// A method call that starts no program to answer it.
QDBusMessage methodCall(const QString& service, const QString& path, const QString& interface,
                        const char* method, const QVariantList& arguments = {});

/// The name and the description of an error, the latter cut if it is very long.
std::string errorText(const QDBusMessage& error);

/// A method call that has been sent. Destroying it abandons the answer.
class BusCall {
public:
    using Answered = std::function<void(const QDBusMessage& reply)>;

    static constexpr int noTimeout = std::numeric_limits<int>::max();

    /// Sends `call`; does not block. `answered` gets the reply or an error on a later turn of the
    /// main loop, and may destroy this.
    BusCall(const QDBusConnection& bus, const QDBusMessage& call, int timeoutMs, Answered answered);
    BusCall(const BusCall&) = delete;
    BusCall& operator=(const BusCall&) = delete;
    ~BusCall();

private:
    QDBusPendingCallWatcher* watcher_; ///< null once answered
};

} // namespace brellowind::platform
