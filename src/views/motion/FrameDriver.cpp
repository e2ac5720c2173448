#include "views/motion/FrameDriver.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace brellowind {
namespace {

constexpr double longestStep = 0.5; ///< points, where the frames are not at their densest
constexpr double densest = 0.016;   ///< seconds from frame to frame
constexpr double sparsest = 0.05;

/// Seconds until the first frame of a motion. Motions that begin together share it.
constexpr double firstFrame = 0.006;

/// Seconds from one frame to the next while the fastest moves by `speed` points a second.
double interval(double speed) {
    return speed > 0 ? std::clamp(longestStep / speed, densest, sparsest) : sparsest;
}

} // namespace

/// A motion that begins during a slow one does not wait for the slow one's next frame.
void FrameDriver::drive(Animated& animated) {
    if (std::ranges::find(moving_, &animated) == moving_.end())
        moving_.push_back(&animated);
    const double moment = std::max(now() + firstFrame, last_ + densest);
    if (!frame_ && (!due_ || moment < *due_))
        schedule(moment);
}

void FrameDriver::forget(Animated& animated) {
    std::ranges::replace(moving_, &animated, static_cast<Animated*>(nullptr));
    if (!frame_)
        dropForgotten();
}

void FrameDriver::makeFrame() {
    last_ = clock();
    frame_ = last_;
    double fastest = 0;
    for (std::size_t i = 0; i < moving_.size(); ++i) { // it may grow meanwhile
        auto* animated = moving_[i];
        if (!animated)
            continue;
        if (const auto speed = animated->advance(last_))
            fastest = std::max(fastest, *speed);
        else
            std::ranges::replace(moving_, animated, static_cast<Animated*>(nullptr));
    }
    frame_.reset();
    schedule(last_ + interval(fastest));
    dropForgotten();
}

double FrameDriver::clock() const {
    const std::chrono::duration<double> time = std::chrono::steady_clock::now().time_since_epoch();
    return time.count();
}

void FrameDriver::startTimer(double moment) {
    const int milliseconds = static_cast<int>(std::lround(1e3 * (moment - clock())));
    timer_.start(std::max(0, milliseconds), Qt::PreciseTimer, this);
}

void FrameDriver::timerEvent(QTimerEvent* /*event*/) {
    makeFrame();
}

void FrameDriver::schedule(double moment) {
    due_ = moment;
    startTimer(moment);
}

/// Stops the timer when nothing is left that moves.
void FrameDriver::dropForgotten() {
    std::erase(moving_, nullptr);
    if (!moving_.empty())
        return;
    due_.reset();
    timer_.stop();
}

} // namespace brellowind
