#include "platform/qt/QtMainLoop.h"

#include <QObject>
#include <QTimerEvent>
#include <utility>

namespace brellowind::platform {
namespace {

enum class Repeat { never, always };

class QtTimer final : public QObject, public RepeatingTimer {
public:
    QtTimer(std::chrono::milliseconds interval, Repeat repeat, MainLoop::Handler handler)
        : handler_(std::make_shared<MainLoop::Handler>(std::move(handler))), interval_(interval),
          repeat_(repeat) {
        setPaused(false);
    }

    void setPaused(bool paused) override {
        if (paused == (id_ == 0))
            return;
        if (paused)
            killTimer(std::exchange(id_, 0));
        else
            id_ = startTimer(interval_, timerType(repeat_));
    }

protected:
    void timerEvent(QTimerEvent* event) override {
        if (event->timerId() != id_)
            return;
        if (repeat_ == Repeat::never)
            setPaused(true);
        const auto handler = handler_; // it may destroy this timer
        (*handler)();
    }

private:
    /// What repeats need not be exact. Coarse timers come to fire together, at full twentieths of a
    /// second, so that the processor is woken once for all of them.
    static Qt::TimerType timerType(Repeat repeat) {
        return repeat == Repeat::always ? Qt::CoarseTimer : Qt::PreciseTimer;
    }

    std::shared_ptr<MainLoop::Handler> handler_;
    std::chrono::milliseconds interval_;
    Repeat repeat_;
    int id_ = 0; ///< of Qt's timer; 0 while this one is paused
};

/// Qt drops queued calls to an object that has been destroyed.
class QtNextTurn final : public QObject, public NextTurn {
public:
    explicit QtNextTurn(MainLoop::Handler handler)
        : handler_(std::make_shared<MainLoop::Handler>(std::move(handler))) {}

    void request() override {
        if (!std::exchange(requested_, true))
            QMetaObject::invokeMethod(
                this, [this] { run(); }, Qt::QueuedConnection);
    }

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
    return std::make_unique<QtTimer>(delay, Repeat::never, std::move(handler));
}

std::unique_ptr<RepeatingTimer> QtMainLoop::scheduleRepeating(std::chrono::milliseconds interval,
                                                              Handler handler) {
    return std::make_unique<QtTimer>(interval, Repeat::always, std::move(handler));
}

std::unique_ptr<NextTurn> QtMainLoop::onNextTurn(Handler handler) {
    return std::make_unique<QtNextTurn>(std::move(handler));
}

} // namespace brellowind::platform
