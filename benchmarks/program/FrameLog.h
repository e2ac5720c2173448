// SPDX-License-Identifier: MIT

#pragma once

#include "views/scene/SceneWindow.h"

#include <vector>

namespace brellowind::benchmarks {

/// Measures the CPU time of each frame of a window, in all threads of the program.
class FrameLog : public QObject {
    Q_OBJECT

public:
    /// Prints the time of the first frame, in nanoseconds of the monotonic clock.
    explicit FrameLog(SceneWindow& window);

    void start();

    /// CPU seconds between successive frames since `start`.
    const std::vector<double>& durations() const { return durations_; }

    int frames() const { return frames_; }

private:
    void frame();

    int frames_ = 0;
    double last_ = 0;
    std::vector<double> durations_;
};

} // namespace brellowind::benchmarks
