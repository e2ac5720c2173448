// SPDX-License-Identifier: MIT

#include "platform/qt/QtMainLoop.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTimer>
#include <optional>
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

/// Counts the iterations of an event loop, of which it has one.
class Iterations final : public QObject {
    Q_OBJECT

public:
    static const Iterations& of(QAbstractEventDispatcher& dispatcher) {
        const auto* known = dispatcher.findChild<Iterations*>({}, Qt::FindDirectChildrenOnly);
        return known ? *known : *new Iterations(dispatcher);
    }

    unsigned number() const { return number_; }

private:
    explicit Iterations(QAbstractEventDispatcher& dispatcher) : QObject(&dispatcher) {
        connect(&dispatcher, &QAbstractEventDispatcher::awake, this, [this] { ++number_; });
    }

    unsigned number_ = 0;
};

/// Runs the handler at the end of the iteration of the event loop in which it was requested; if
/// that was at its end, of the next one. A queued call instead would always take another iteration,
/// with three system calls, 30 times per second while playing.
class QtNextTurn final : public QObject, public NextTurn {
public:
    explicit QtNextTurn(MainLoop::Handler handler)
        : handler_(std::make_shared<MainLoop::Handler>(std::move(handler))),
          dispatcher_(*QAbstractEventDispatcher::instance()),
          iterations_(Iterations::of(dispatcher_)) {
        connect(&dispatcher_, &QAbstractEventDispatcher::awake, this, [this] {
            if (requested_ && requested_ != iterations_.number())
                run();
        });
        connect(&dispatcher_, &QAbstractEventDispatcher::aboutToBlock, this, [this] {
            if (requested_)
                dispatcher_.wakeUp();
        });
    }

    void request() override {
        if (!requested_)
            requested_ = iterations_.number();
    }

private:
    void run() {
        requested_.reset();
        const auto handler = handler_; // it may destroy this
        (*handler)();
    }

    std::shared_ptr<MainLoop::Handler> handler_;
    QAbstractEventDispatcher& dispatcher_;
    const Iterations& iterations_;
    std::optional<unsigned> requested_; ///< the iteration of a pending request
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

#include "QtMainLoop.moc"
