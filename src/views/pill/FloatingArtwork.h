// SPDX-License-Identifier: MIT

#pragma once

#include "views/scene/Item.h"

namespace brellowind {

class ArtworkCaption;
class ArtworkImage;
class FrameDriver;
class NotchRootView;
class TapArea;
struct PillContent;
struct PillMotion;

/// The cover, which moves between the positions of the thumbnail and of the panel. It always
/// receives input in the thumbnail's corner of the pill.
class FloatingArtwork : public Item {
    Q_OBJECT

public:
    FloatingArtwork(NotchRootView& view, const PillContent& content, FrameDriver& frames,
                    Item* parent);

    /// Updates from the content.
    void refresh();

    /// Lays out the cover in a pill whose left edge is at `left`.
    void layOut(const PillMotion& motion, double left);

private:
    void showCaption(double opacity);
    void fillCaption();

    const PillContent& content_;
    FrameDriver& frames_;
    ArtworkImage* image_;
    ArtworkCaption* caption_ = nullptr; ///< exists while visible
    TapArea* area_;
};

} // namespace brellowind
