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

/// The cover, gliding between the thumbnail's place and the panel's. It takes the pointer in the
/// thumbnail's corner of the pill alone, wherever it glides.
class FloatingArtwork : public Item {
    Q_OBJECT

public:
    FloatingArtwork(NotchRootView& view, const PillContent& content, FrameDriver& frames,
                    Item* parent);

    /// Shows the content as it is now.
    void follow();

    /// Takes its place in a pill whose left edge is at `left`.
    void layOut(const PillMotion& motion, double left);

private:
    void showCaption(double opacity);
    void fillCaption();

    const PillContent& content_;
    FrameDriver& frames_;
    ArtworkImage* image_;
    ArtworkCaption* caption_ = nullptr; ///< there while it is visible
    TapArea* area_;
};

} // namespace brellowind
