// SPDX-License-Identifier: MIT

#include "session/EventLoop.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

namespace brellowind::test {

bool waitUntil(const std::function<bool()>& condition, std::chrono::milliseconds patience) {
    QTimer wake; // for conditions that change without an event
    wake.start(std::chrono::milliseconds(5));
    const QDeadlineTimer deadline(patience);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

void runFor(std::chrono::milliseconds duration) {
    QEventLoop loop;
    QTimer::singleShot(duration, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace brellowind::test
