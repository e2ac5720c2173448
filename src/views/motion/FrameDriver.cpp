#include "views/motion/FrameDriver.h"

#include <QTimerEvent>
#include <algorithm>
#include <chrono>
#include <cmath>

namespace brellowind {
namespace {

constexpr double longestStep = 0.5; ///< points, where the frames are not at their densest
constexpr double densest = 0.016;   ///< seconds from frame to frame
constexpr double sparsest = 0.05;

/// Seconds until a motion shows for the first time. Not none, since what is asked for together
/// shows together.
constexpr double firstFrame = 0.006;

} // namespace

FrameDriver& FrameDriver::shared() {
    static FrameDriver driver;
    return driver;
}

double FrameDriver::now() const {
    if (frozen_ >= 0)
        return frozen_;
    if (frame_ >= 0)
        return frame_;
    const std::chrono::duration<double> time = std::chrono::steady_clock::now().time_since_epoch();
    return time.count();
}

/// What begins amid a slow motion does not wait for that motion's next frame.
void FrameDriver::drive(Animated& animated) {
    if (std::ranges::find(moving_, &animated) == moving_.end())
        moving_.push_back(&animated);
    if (frame_ >= 0 || frozen_ >= 0)
        return;
    const double moment = std::max(now() + firstFrame, last_ + densest);
    if (!isRunning() || moment < due_)
        scheduleAt(moment);
}

void FrameDriver::forget(Animated& animated) {
    std::ranges::replace(moving_, &animated, static_cast<Animated*>(nullptr));
    if (frame_ < 0)
        rest();
}

void FrameDriver::freeze(double seconds) {
    timer_.stop();
    frozen_ = seconds;
}

void FrameDriver::step(double seconds) {
    frozen_ += seconds;
    advanceAll();
}

void FrameDriver::thaw() {
    frozen_ = -1;
    last_ = 0; // of the other clock
    if (!moving_.empty())
        scheduleAt(now() + densest);
}

void FrameDriver::timerEvent(QTimerEvent* /*event*/) {
    advanceAll();
}

void FrameDriver::advanceAll() {
    last_ = frame_ = now();
    double fastest = 0;
    for (std::size_t i = 0; i < moving_.size(); ++i) { // it may grow meanwhile
        auto* animated = moving_[i];
        if (!animated)
            continue;
        if (const auto speed = animated->advance(frame_))
            fastest = std::max(fastest, *speed);
        else
            std::ranges::replace(moving_, animated, static_cast<Animated*>(nullptr));
    }
    frame_ = -1;
    scheduleNext(fastest);
    rest();
}

void FrameDriver::scheduleNext(double speed) {
    if (frozen_ >= 0)
        return;
    const double interval = speed > 0 ? longestStep / speed : sparsest;
    scheduleAt(last_ + std::clamp(interval, densest, sparsest));
}

void FrameDriver::scheduleAt(double moment) {
    due_ = moment;
    const int milliseconds = static_cast<int>(std::lround(1e3 * (moment - now())));
    timer_.start(std::max(0, milliseconds), Qt::PreciseTimer, this);
}

/// Drops those that need no more frames, and stops when none is left.
void FrameDriver::rest() {
    std::erase(moving_, nullptr);
    if (moving_.empty())
        timer_.stop();
}

} // namespace brellowind
