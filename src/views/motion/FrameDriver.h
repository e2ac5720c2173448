#pragma once

#include <QAbstractAnimation>
#include <vector>

namespace brellowind {

/// Something that changes with time, frame by frame.
class Animated {
public:
    virtual ~Animated() = default;

    /// Shows the moment `now`. False once it has come to rest: it then needs no more frames.
    virtual bool advance(double now) = 0;
};

/// Drives what moves, once a frame, and nothing while all is at rest. All that moves sees the same
/// moment in one frame. Main thread only.
class FrameDriver : public QAbstractAnimation {
    Q_OBJECT

public:
    static FrameDriver& shared();

    /// Seconds on a monotonic clock: the moment of the present frame while one is being made.
    double now() const;

    /// Asks for frames until `animated` comes to rest. Asking again changes nothing.
    void drive(Animated& animated);

    /// Forgets `animated`, which is about to go.
    void forget(Animated& animated);

    int duration() const override { return -1; }

    /// Stops the clock at `seconds`; from then on it moves only by `step`. For pictures of motions.
    void freeze(double seconds);
    void step(double seconds);

protected:
    void updateCurrentTime(int currentTime) override;

private:
    FrameDriver() = default;

    void advanceAll();
    void restIfNothingMoves();

    std::vector<Animated*> moving_;
    double frame_ = -1;  ///< below 0: no frame is being made
    double frozen_ = -1; ///< below 0: the clock runs
};

} // namespace brellowind
