// SPDX-License-Identifier: MIT

#include "platform/qt/QtMainLoop.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTimer>
#include <utility>

namespace brellowind::platform {
namespace {

class QtTimer final : public QTimer, public RepeatingTimer {
public:
    /// Repeating timers are coarse: they fire together, at full 1/20 s, to save wake-ups.
    QtTimer(std::chrono::milliseconds interval, bool repeats, MainLoop::Handler handler) {
        setInterval(interval);
        setSingleShot(!repeats);
        setTimerType(repeats ? Qt::CoarseTimer : Qt::PreciseTimer);
        callOnTimeout(std::move(handler)); // stays valid if it destroys this
        start();
    }

    void setPaused(bool paused) override {
        if (paused)
            stop();
        else if (!isActive())
            start();
    }
};

/// Runs the handler as soon as the event loop has handled what woke it. A queued call instead would
/// take another turn of the loop, with three system calls, 30 times per second while playing.
class QtNextTurn final : public QObject, public NextTurn {
public:
    explicit QtNextTurn(MainLoop::Handler handler)
        : handler_(std::make_shared<MainLoop::Handler>(std::move(handler))) {
        auto* dispatcher = QAbstractEventDispatcher::instance();
        connect(dispatcher, &QAbstractEventDispatcher::awake, this, [this] {
            if (requested_)
                run();
        });
        connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this, dispatcher] {
            if (requested_)
                dispatcher->wakeUp();
        });
    }

    void request() override { requested_ = true; }

private:
    void run() {
        requested_ = false;
        const auto handler = handler_; // it may destroy this
        (*handler)();
    }

    std::shared_ptr<MainLoop::Handler> handler_;
    bool requested_ = false;
};

} // namespace

std::unique_ptr<Timer> QtMainLoop::scheduleOnce(std::chrono::milliseconds delay, Handler handler) {
    return std::make_unique<QtTimer>(delay, false, std::move(handler));
}

std::unique_ptr<RepeatingTimer> QtMainLoop::scheduleRepeating(std::chrono::milliseconds interval,
                                                              Handler handler) {
    return std::make_unique<QtTimer>(interval, true, std::move(handler));
}

std::unique_ptr<NextTurn> QtMainLoop::onNextTurn(Handler handler) {
    return std::make_unique<QtNextTurn>(std::move(handler));
}

void QtMainLoop::quit() {
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

} // namespace brellowind::platform
