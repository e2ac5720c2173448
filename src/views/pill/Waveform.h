// SPDX-License-Identifier: MIT

#pragma once

#include "views/scene/Item.h"

namespace brellowind {

class Glyph;
class NotchRootView;
class TapArea;
class WaveformGlyph;
struct PillContent;
struct PillMotion;

/// The playing indicator, which is also the play/pause button.
class Waveform : public Item {
    Q_OBJECT

public:
    Waveform(NotchRootView& view, const PillContent& content, Item* parent);

    /// Updates from the content.
    void refresh();

    void layOut(const PillMotion& motion);

private:
    const PillContent& content_;
    WaveformGlyph* waveform_;
    Glyph* button_;
    TapArea* area_;
};

} // namespace brellowind
