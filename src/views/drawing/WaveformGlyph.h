#pragma once

#include "views/scene/Item.h"

#include <QBasicTimer>
#include <QImage>

namespace brellowind {

/// The waveform symbol. While `active` a wave of full strength runs through its bars, one after the
/// other, again and again; otherwise it stands still.
class WaveformGlyph : public PainterItem {
    Q_OBJECT

public:
    static constexpr int barCount = 5;

    explicit WaveformGlyph(Item* parent = nullptr);

    bool isActive() const { return active_; }
    void setActive(bool active);

    /// Where in its round the wave stands, in steps of a tenth of a second; it goes on from there.
    void setStep(int step);

    void paint(QPainter& painter) override;

    /// The strength of the bar `index` when the wave stands at `phase`, 0 to 1, of its round.
    static double strength(int index, double phase);

protected:
    void timerEvent(QTimerEvent* event) override;
    void visibilityChanged() override;

private:
    void follow();
    QRectF column(int index) const;
    QImage paintedBars(double ratio) const;
    QImage wave(double phase) const;

    bool active_ = false;
    int step_ = 0;
    QImage bars_; ///< all of them at full strength: outlines cost more than images
    QBasicTimer steps_;
};

} // namespace brellowind
