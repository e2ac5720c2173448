// SPDX-License-Identifier: MIT

#include "support/FakeMainLoop.h"

#include <algorithm>
#include <utility>

namespace brellowind::test {

using std::chrono::milliseconds;

class FakeMainLoop::FakeTimer final : public platform::RepeatingTimer {
public:
    FakeTimer(FakeMainLoop& loop, milliseconds delay, milliseconds interval, Handler handler)
        : due(loop.now_ + delay), interval_(interval), loop_(loop),
          handler_(std::make_shared<Handler>(std::move(handler))) {
        loop_.timers_.push_back(this);
    }

    ~FakeTimer() override { loop_.timers_.remove(this); }

    void setPaused(bool paused) override { paused_ = paused; }

    void fire() {
        const auto handler = handler_; // it may destroy this timer
        if (interval_.count() > 0)
            due += interval_;
        else
            due = milliseconds::max();
        if (paused_)
            return;
        if (std::exchange(loop_.lastWakeUp_, loop_.now_) != loop_.now_)
            ++loop_.wakeUps_;
        (*handler)();
    }

    milliseconds interval() const { return interval_; }

    milliseconds due;

private:
    milliseconds interval_;
    bool paused_ = false;
    FakeMainLoop& loop_;
    std::shared_ptr<Handler> handler_;
};

class FakeMainLoop::FakeNextTurn final : public platform::NextTurn {
public:
    FakeNextTurn(FakeMainLoop& loop, Handler handler) : loop_(loop), handler_(std::move(handler)) {
        loop_.nextTurns_.push_back(this);
    }

    ~FakeNextTurn() override { loop_.nextTurns_.remove(this); }

    void request() override { requested_ = true; }

    bool run() {
        if (!std::exchange(requested_, false))
            return false;
        handler_();
        return true;
    }

private:
    FakeMainLoop& loop_;
    Handler handler_;
    bool requested_ = false;
};

std::unique_ptr<platform::Timer> FakeMainLoop::scheduleOnce(milliseconds delay, Handler handler) {
    return std::make_unique<FakeTimer>(*this, delay, milliseconds(0), std::move(handler));
}

std::unique_ptr<platform::RepeatingTimer> FakeMainLoop::scheduleRepeating(milliseconds interval,
                                                                          Handler handler) {
    return std::make_unique<FakeTimer>(*this, interval, interval, std::move(handler));
}

std::unique_ptr<platform::NextTurn> FakeMainLoop::onNextTurn(Handler handler) {
    return std::make_unique<FakeNextTurn>(*this, std::move(handler));
}

FakeMainLoop::FakeTimer* FakeMainLoop::nextDue(milliseconds until) const {
    const auto earliest = std::ranges::min_element(timers_, {}, &FakeTimer::due);
    return earliest != timers_.end() && (*earliest)->due <= until ? *earliest : nullptr;
}

void FakeMainLoop::runNextTurns() {
    while (std::ranges::any_of(nextTurns_, [](FakeNextTurn* turn) { return turn->run(); })) {
    }
}

void FakeMainLoop::advance(milliseconds duration) {
    const milliseconds end = now_ + duration;
    runNextTurns();
    while (auto* timer = nextDue(end)) {
        now_ = std::max(now_, timer->due);
        timer->fire();
        runNextTurns();
    }
    now_ = end;
}

std::size_t FakeMainLoop::repeatingTimerCount(milliseconds interval) const {
    return static_cast<std::size_t>(std::ranges::count(timers_, interval, &FakeTimer::interval));
}

} // namespace brellowind::test
