#pragma once

#include "views/motion/FrameDriver.h"

namespace brellowind::test {

/// Makes frames when it is told to. Its clock stands still in between.
class SteppedFrames final : public FrameDriver {
public:
    /// Lets `seconds` pass and makes a frame.
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
