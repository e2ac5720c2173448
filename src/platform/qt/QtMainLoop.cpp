#include "platform/qt/QtMainLoop.h"

#include "foundation/Observers.h"

#include <QAbstractEventDispatcher>
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
        setResting(false);
    }

    void setResting(bool resting) override {
        if (resting == (id_ == 0))
            return;
        if (resting)
            killTimer(std::exchange(id_, 0));
        else
            id_ = startTimer(interval_, timerType(repeat_));
    }

protected:
    void timerEvent(QTimerEvent* event) override {
        if (event->timerId() != id_)
            return;
        if (repeat_ == Repeat::never)
            setResting(true);
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
    int id_ = 0; ///< of Qt's timer; 0 while this one rests
};

/// The turns of this thread's loop. A turn ends just before the loop rests; `awake` covers loops
/// that are driven without resting. The loop passes one of the two before it rests, so only what is
/// asked for after that has to wake it.
class QtTurns final : public QObject, public std::enable_shared_from_this<QtTurns> {
public:
    static std::shared_ptr<QtTurns> ofThisThread() {
        static thread_local std::weak_ptr<QtTurns> turns;
        auto current = turns.lock();
        if (!current)
            turns = current = std::make_shared<QtTurns>();
        return current;
    }

    QtTurns() {
        const auto* dispatcher = QAbstractEventDispatcher::instance();
        connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this] { end(true); });
        connect(dispatcher, &QAbstractEventDispatcher::awake, this, [this] { end(false); });
    }

    /// What observes the ends of those turns in which something was requested.
    Subscription add(Observers::Callback callback) { return ends_->add(std::move(callback)); }

    void request() {
        requested_ = true;
        if (restsNext_)
            QAbstractEventDispatcher::instance()->wakeUp();
    }

private:
    void end(bool restsNext) {
        if (!std::exchange(requested_, false))
            return;
        const auto self = shared_from_this(); // an observer may be the last owner
        const bool before = std::exchange(restsNext_, restsNext);
        ends_->notify();
        restsNext_ = before;
    }

    std::shared_ptr<Observers> ends_ = std::make_shared<Observers>();
    bool requested_ = false;
    bool restsNext_ = false; ///< the loop has decided to rest and runs the last handlers
};

class QtNextTurn final : public NextTurn {
public:
    explicit QtNextTurn(MainLoop::Handler handler)
        : subscription_(turns_->add([this, handler = std::move(handler)] {
              if (std::exchange(requested_, false))
                  handler();
          })) {}

    void request() override {
        if (!std::exchange(requested_, true))
            turns_->request();
    }

private:
    std::shared_ptr<QtTurns> turns_ = QtTurns::ofThisThread();
    bool requested_ = false;
    Subscription subscription_;
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
