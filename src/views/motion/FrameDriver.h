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

    /// Shows the moment `now` and tells how fast it moves there, in points a second. Nothing once
    /// it has come to rest: it then needs no more frames.
    virtual std::optional<double> advance(double now) = 0;
};

/// Drives what moves, and has no timer while all is at rest. All that moves sees the same moment in
/// one frame. There are 60 frames a second while anything moves by more than half a point from one
/// to the next; the slow end of a motion gets fewer, of steps that are no longer. Main thread only.
class FrameDriver : public QObject {
    Q_OBJECT

public:
    /// Seconds on a monotonic clock: the moment of the present frame while one is being made.
    double now() const { return frame_ ? *frame_ : clock(); }

    /// Asks for frames until `animated` comes to rest. Asking again changes nothing.
    void drive(Animated& animated);

    /// Forgets `animated`, which is about to go.
    void forget(Animated& animated);

protected:
    /// The clock, and a timer that makes a frame once it shows `moment`. Tests have others.
    virtual double clock() const;
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
