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

/// Drives what moves, and nothing while all is at rest. All that moves sees the same moment in one
/// frame. There are 60 frames a second while anything moves by more than half a point from one to
/// the next; the slow end of a motion gets fewer, of steps that are no longer. Main thread only.
class FrameDriver : public QObject {
    Q_OBJECT

public:
    static FrameDriver& shared();

    /// Seconds on a monotonic clock: the moment of the present frame while one is being made.
    double now() const;

    /// Whether a frame is due.
    bool isRunning() const { return timer_.isActive(); }

    /// Asks for frames until `animated` comes to rest. Asking again changes nothing.
    void drive(Animated& animated);

    /// Forgets `animated`, which is about to go.
    void forget(Animated& animated);

    /// Stops the clock at `seconds`; from then on it moves only by `step`. For pictures of motions.
    void freeze(double seconds);
    void step(double seconds);

    /// Lets the clock run again. For when nothing moves: the two clocks tell different times.
    void thaw();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    FrameDriver() = default;

    void advanceAll();
    void rest();
    void scheduleNext(double speed);
    void scheduleAt(double moment);

    std::vector<Animated*> moving_;
    QBasicTimer timer_;
    double frame_ = -1;  ///< below 0: no frame is being made
    double frozen_ = -1; ///< below 0: the clock runs
    double last_ = 0;    ///< the moment of the last frame
    double due_ = 0;     ///< the moment of the next one, while one is due
};

} // namespace brellowind
