#pragma once

#include "views/scene/Item.h"

namespace brellowind {

class Glyph;
class NotchRootModel;
class TapArea;
class WaveformGlyph;
struct PillMotion;

/// The playing indicator, which is the play/pause button as well.
class Waveform : public Item {
    Q_OBJECT

public:
    Waveform(NotchRootModel& model, Item* parent);

    /// Shows what the model has now.
    void follow();

    void layOut(const PillMotion& motion);

private:
    NotchRootModel& model_;
    WaveformGlyph* waveform_;
    Glyph* button_;
    TapArea* area_;
};

} // namespace brellowind
