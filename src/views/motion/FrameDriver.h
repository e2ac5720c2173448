#pragma once

#include <QBasicTimer>
#include <QObject>
#include <optional>
#include <vector>

namespace brellowind {

/// Something that changes with time, frame by frame.
class Animated {
public:
    virtual ~Animated() = default;

    /// Moves to the moment `now`. Returns its speed in points per second; none once it rests.
    virtual std::optional<double> advance(double now) = 0;
};

/// Advances animations frame by frame, and has no timer while all are at rest. All see the same
/// moment in one frame. It makes 60 frames per second while anything moves by more than half a
/// point from one to the next, and fewer at the slow end of a motion. Main thread only.
class FrameDriver : public QObject {
    Q_OBJECT

public:
    /// The moment of the frame that is being made, or else what the clock shows, in seconds.
    double now() const { return frame_ ? *frame_ : clock(); }

    /// Advances `animated` in every frame until it comes to rest. Idempotent.
    void drive(Animated& animated);

    /// To be called before a driven `animated` is destroyed.
    void forget(Animated& animated);

protected:
    /// Seconds on a monotonic clock. Virtual for tests, as is the timer.
    virtual double clock() const;

    /// Starts a timer that calls `makeFrame` when the clock shows `moment`.
    virtual void startTimer(double moment);

    void makeFrame();

    void timerEvent(QTimerEvent* event) override;

private:
    void schedule(double moment);
    void dropForgotten();

    std::vector<Animated*> moving_; ///< null: forgotten, or come to rest, while a frame was made
    QBasicTimer timer_;
    std::optional<double> frame_; ///< the moment of the frame that is being made
    std::optional<double> due_;   ///< the moment of the next one
    double last_ = 0;             ///< the moment of the last one
};

} // namespace brellowind
