#pragma once

#include "views/scene/Item.h"

#include <QBasicTimer>
#include <QImage>
#include <array>

namespace brellowind {

/// The waveform symbol. While `active` a wave of full strength runs through its bars, one after the
/// other, again and again; otherwise it stands still.
class WaveformGlyph : public PainterItem {
    Q_OBJECT

public:
    explicit WaveformGlyph(Item* parent = nullptr);

    void setActive(bool active);

    /// Where in its round the wave stands, in steps of a tenth of a second; it goes on from there.
    void setStep(int step);

    void paint(QPainter& painter) override;

protected:
    void timerEvent(QTimerEvent* event) override;
    void visibilityChanged() override;

private:
    void follow();

    bool active_ = false;
    int step_ = 0;
    std::array<QImage, 5> bars_; ///< each as it is drawn, white
    QBasicTimer steps_;
};

} // namespace brellowind
