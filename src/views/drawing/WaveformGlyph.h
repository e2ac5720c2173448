// SPDX-License-Identifier: MIT

#pragma once

#include "views/scene/Item.h"

#include <QBasicTimer>
#include <QImage>
#include <vector>

namespace brellowind {

/// The waveform symbol. While `active`, a highlight runs through its bars in a loop.
class WaveformGlyph : public PainterItem {
    Q_OBJECT

public:
    explicit WaveformGlyph(Item* parent = nullptr);

    void setActive(bool active);

    /// The position in the loop, in steps of 0.1 s. The animation continues from there.
    void setStep(int step);

    void paint(QPainter& painter) override;

protected:
    void timerEvent(QTimerEvent* event) override;
    void visibilityChanged() override;

private:
    void updateTimer();

    bool active_ = false;
    int step_ = 0;
    std::vector<QImage> bars_; ///< each as it is drawn, white
    QBasicTimer steps_;
};

} // namespace brellowind
