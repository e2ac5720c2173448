// SPDX-License-Identifier: MIT

#pragma once

#include "views/motion/FrameDriver.h"

namespace brellowind::test {

/// A frame driver with simulated time.
class SteppedFrames final : public FrameDriver {
public:
    /// Advances the clock by `seconds` and makes a frame.
    void step(double seconds) {
        now_ += seconds;
        makeFrame();
    }

protected:
    double clock() const override { return now_; }
    void startTimer(double /*moment*/) override {}

private:
    double now_ = 100;
};

} // namespace brellowind::test
