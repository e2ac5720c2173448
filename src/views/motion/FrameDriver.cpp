#include "views/motion/FrameDriver.h"

#include <QTimer>
#include <algorithm>
#include <chrono>

namespace brellowind {
namespace {

/// A motion shows this early for the first time: Qt itself lets a whole frame pass before.
constexpr std::chrono::milliseconds firstFrame{6};

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

void FrameDriver::drive(Animated& animated) {
    if (std::ranges::find(moving_, &animated) == moving_.end())
        moving_.push_back(&animated);
    if (frozen_ >= 0 || state() == Running)
        return;
    start();
    QTimer::singleShot(firstFrame, Qt::PreciseTimer, this, [this] {
        if (state() == Running)
            advanceAll();
    });
}

void FrameDriver::forget(Animated& animated) {
    std::ranges::replace(moving_, &animated, static_cast<Animated*>(nullptr));
    if (frame_ < 0)
        rest();
}

void FrameDriver::freeze(double seconds) {
    stop();
    frozen_ = seconds;
}

void FrameDriver::step(double seconds) {
    frozen_ += seconds;
    advanceAll();
}

void FrameDriver::thaw() {
    frozen_ = -1;
    if (!moving_.empty())
        start();
}

void FrameDriver::updateCurrentTime(int currentTime) {
    // At 0 it comes from within `start`, when what is asked for has not been said to the end.
    if (currentTime > 0)
        advanceAll();
}

void FrameDriver::advanceAll() {
    frame_ = now();
    for (std::size_t i = 0; i < moving_.size(); ++i) {
        auto* animated = moving_[i];
        if (animated && !animated->advance(frame_))
            std::ranges::replace(moving_, animated, static_cast<Animated*>(nullptr));
    }
    frame_ = -1;
    rest();
}

/// Drops those that need no more frames, and stops when none is left.
void FrameDriver::rest() {
    std::erase(moving_, nullptr);
    if (moving_.empty() && state() == Running)
        stop();
}

} // namespace brellowind
