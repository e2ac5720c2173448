#pragma once

#include "views/scene/Item.h"

namespace brellowind {

class Glyph;
class NotchRootView;
class TapArea;
class WaveformGlyph;
struct PillContent;
struct PillMotion;

/// The playing indicator, which is the play/pause button as well.
class Waveform : public Item {
    Q_OBJECT

public:
    Waveform(NotchRootView& view, const PillContent& content, Item* parent);

    /// Shows the content as it is now.
    void follow();

    void layOut(const PillMotion& motion);

private:
    const PillContent& content_;
    WaveformGlyph* waveform_;
    Glyph* button_;
    TapArea* area_;
};

} // namespace brellowind
