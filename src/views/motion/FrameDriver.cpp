// SPDX-License-Identifier: MIT

#include "views/motion/FrameDriver.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace brellowind {
namespace {

constexpr double longestStep = 0.5; ///< points per frame, unless at the highest frame rate
constexpr double densest = 0.016;   ///< seconds from frame to frame
constexpr double sparsest = 0.05;

/// Seconds until the first frame of a motion, which coalesces motions that begin together.
constexpr double firstFrame = 0.006;

/// Seconds between frames for a maximum speed of `speed` points per second.
double interval(double speed) {
    return speed > 0 ? std::clamp(longestStep / speed, densest, sparsest) : sparsest;
}

} // namespace

/// A new motion does not wait for the next frame of a slow one.
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
    for (std::size_t i = 0; i < moving_.size(); ++i) { // `advance` may append
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

/// Also stops the timer if nothing moves.
void FrameDriver::dropForgotten() {
    std::erase(moving_, nullptr);
    if (!moving_.empty())
        return;
    due_.reset();
    timer_.stop();
}

} // namespace brellowind
