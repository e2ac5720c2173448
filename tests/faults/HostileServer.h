// SPDX-License-Identifier: MIT

#pragma once

#include "loopback/LoopbackServer.h"

#include <QSslConfiguration>
#include <QThread>
#include <atomic>
#include <memory>

namespace brellowind::test {

/// A server in a separate thread, which is not counted in the test thread's CPU time.
class HostileServer {
public:
    using Handler = demo::LoopbackServer::Handler;

    /// Runs `handler` in the server's thread for every request. Fails the test if it cannot listen.
    explicit HostileServer(Handler handler);

    /// Serves over TLS, with the certificate and key in `tls`.
    HostileServer(Handler handler, const QSslConfiguration& tls);

    HostileServer(const HostileServer&) = delete;
    HostileServer& operator=(const HostileServer&) = delete;
    ~HostileServer();

    QString origin() const { return origin_; }

    /// The number of received requests.
    int requests() const { return requests_; }

private:
    template <typename... Tls>
    void start(Handler handler, const Tls&... tls);

    std::atomic<int> requests_ = 0;
    QThread thread_;
    std::unique_ptr<demo::LoopbackServer> server_; ///< lives in that thread
    QString origin_;
};

} // namespace brellowind::test
