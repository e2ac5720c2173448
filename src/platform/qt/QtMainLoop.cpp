#include "platform/qt/QtMainLoop.h"

#include <QAbstractEventDispatcher>
#include <QObject>
#include <QTimerEvent>
#include <utility>

namespace brellowind::platform {
namespace {

enum class Repeat { never, always };

class QtTimer final : public QObject, public Timer {
public:
    QtTimer(std::chrono::milliseconds interval, Repeat repeat, MainLoop::Handler handler)
        : handler_(std::make_shared<MainLoop::Handler>(std::move(handler))), repeat_(repeat),
          id_(startTimer(interval, timerType(repeat))) {}

protected:
    void timerEvent(QTimerEvent* event) override {
        if (event->timerId() != id_)
            return;
        if (repeat_ == Repeat::never)
            killTimer(id_);
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
    Repeat repeat_;
    int id_;
};

/// Runs just before the loop rests; `awake` covers loops that are driven without resting. The loop
/// passes one of the two before it rests, so only what is asked for after that has to wake it.
class QtNextTurn final : public QObject, public NextTurn {
public:
    explicit QtNextTurn(MainLoop::Handler handler)
        : handler_(std::make_shared<MainLoop::Handler>(std::move(handler))) {
        const auto* dispatcher = QAbstractEventDispatcher::instance();
        connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &QtNextTurn::runLast);
        connect(dispatcher, &QAbstractEventDispatcher::awake, this, &QtNextTurn::run);
    }

    void request() override {
        if (!std::exchange(requested_, true) && restsNext)
            QAbstractEventDispatcher::instance()->wakeUp();
    }

private:
    void runLast() {
        const bool before = std::exchange(restsNext, true);
        run();
        restsNext = before;
    }

    void run() {
        if (!std::exchange(requested_, false))
            return;
        const auto handler = handler_; // it may destroy this
        (*handler)();
    }

    /// The loop has decided to rest and runs the last handlers.
    static inline thread_local bool restsNext = false;

    std::shared_ptr<MainLoop::Handler> handler_;
    bool requested_ = false;
};

} // namespace

std::unique_ptr<Timer> QtMainLoop::scheduleOnce(std::chrono::milliseconds delay, Handler handler) {
    return std::make_unique<QtTimer>(delay, Repeat::never, std::move(handler));
}

std::unique_ptr<Timer> QtMainLoop::scheduleRepeating(std::chrono::milliseconds interval,
                                                     Handler handler) {
    return std::make_unique<QtTimer>(interval, Repeat::always, std::move(handler));
}

std::unique_ptr<NextTurn> QtMainLoop::onNextTurn(Handler handler) {
    return std::make_unique<QtNextTurn>(std::move(handler));
}

} // namespace brellowind::platform
