// SPDX-License-Identifier: MIT

#include "faults/HostileServer.h"

#include <QAbstractEventDispatcher>
#include <gtest/gtest.h>
#include <utility>

namespace brellowind::test {
namespace {

/// Runs `work` in `thread` and waits for it.
template <typename Work>
void runIn(const QThread& thread, Work work) {
    QMetaObject::invokeMethod(QAbstractEventDispatcher::instance(const_cast<QThread*>(&thread)),
                              std::move(work), Qt::BlockingQueuedConnection);
}

} // namespace

HostileServer::HostileServer(Handler handler) {
    start(std::move(handler));
}

HostileServer::HostileServer(Handler handler, const QSslConfiguration& tls) {
    start(std::move(handler), tls);
}

HostileServer::~HostileServer() {
    runIn(thread_, [this] { server_.reset(); });
    thread_.quit();
    thread_.wait();
}

template <typename... Tls>
void HostileServer::start(Handler handler, const Tls&... tls) {
    thread_.start();
    while (!QAbstractEventDispatcher::instance(&thread_))
        QThread::yieldCurrentThread();
    runIn(thread_, [&] {
        server_ = std::make_unique<demo::LoopbackServer>(
            [this, handler = std::move(handler)](const demo::Exchange& exchange) {
                ++requests_;
                handler(exchange);
            },
            tls...);
        origin_ = server_->origin();
    });
    EXPECT_FALSE(origin_.isEmpty()) << "the server does not listen";
}

} // namespace brellowind::test
