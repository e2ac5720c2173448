#pragma once

#include "platform/WindowSystem.h"
#include "views/motion/FrameDriver.h"
#include "views/pill/PillMotion.h"
#include "views/scene/Item.h"

#include <memory>

namespace brellowind {

class FloatingArtwork;
class Grabber;
class LyricText;
class NotchRootModel;
class PillMenu;
class PillShape;
class TapArea;
class Waveform;

/// The black pill and all that is in it, hanging from the middle of its top edge. It shows what the
/// model has: each change of the model turns its springs, and each frame lays it out anew.
class Pill : public Item, private Animated {
    Q_OBJECT

public:
    /// `model` and `windowSystem`, which shows the context menu, must outlive it.
    Pill(NotchRootModel& model, platform::WindowSystem& windowSystem, Item* parent);
    ~Pill() override;

    /// Hangs in a window of that size.
    void fill(QSizeF size);

    const PillShape& shape() const { return *shape_; }

    /// The context menu; null until it was first wanted.
    PillMenu* menu() { return menu_.get(); }

    /// Opens the context menu at a point of the window.
    void openMenu(QPointF position);

private:
    std::optional<double> advance(double now) override;
    void follow();
    void followPanel();
    void tapBackground();
    void layOut();
    void layOutTexts();
    double bottomPadding() const;
    double collapsedHeight() const;
    double panelHeight() const;

    NotchRootModel& model_;
    platform::WindowSystem& windowSystem_;
    PillShape* shape_;
    TapArea* background_;
    Item* inside_; ///< clips the texts
    LyricText* line_;
    LyricText* panelLine_ = nullptr; ///< there while the artwork panel is seen
    FloatingArtwork* artwork_;
    Waveform* waveform_;
    Grabber* grabber_;
    PillMotion motion_;
    std::unique_ptr<PillMenu> menu_; ///< made when it is first wanted: most days it never is
};

} // namespace brellowind
