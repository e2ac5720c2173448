// SPDX-License-Identifier: MIT

#pragma once

#include <QBasicTimer>
#include <QObject>
#include <optional>
#include <vector>

namespace brellowind {

/// An animation.
class Animated {
public:
    virtual ~Animated() = default;

    /// Updates to the time `now`. Returns the speed in points per second, or nullopt at rest.
    virtual std::optional<double> advance(double now) = 0;
};

/// Advances animations frame by frame. No timer runs while all are at rest. All get the same time
/// in a frame. Up to 60 frames per second; fewer if no animation moves by more than half a point
/// per frame, as at the slow end of a motion. Main thread only.
class FrameDriver : public QObject {
    Q_OBJECT

public:
    /// The time of the current frame, else the clock's time, in seconds.
    double now() const { return frame_ ? *frame_ : clock(); }

    /// Advances `animated` in every frame until it comes to rest. Idempotent.
    void drive(Animated& animated);

    /// Call before a driven `animated` is destroyed.
    void forget(Animated& animated);

protected:
    /// Seconds on a monotonic clock. Virtual for tests, as is the timer.
    virtual double clock() const;

    /// Starts a timer that calls `makeFrame` at the time `moment`.
    virtual void startTimer(double moment);

    void makeFrame();

    void timerEvent(QTimerEvent* event) override;

private:
    void schedule(double moment);
    void dropForgotten();

    std::vector<Animated*> moving_; ///< null: removed during a frame
    QBasicTimer timer_;
    std::optional<double> frame_; ///< the time of the current frame
    std::optional<double> due_;   ///< the time of the next one
    double last_ = 0;             ///< the time of the last one
};

} // namespace brellowind
