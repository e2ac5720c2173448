#pragma once

#include "platform/WindowSystem.h"
#include "views/motion/FrameDriver.h"
#include "views/pill/PillContent.h"
#include "views/pill/PillMotion.h"
#include "views/scene/Item.h"

#include <memory>
#include <vector>

namespace brellowind {

class FloatingArtwork;
class Grabber;
class LyricText;
class NotchRootView;
class PillMenu;
class PillShape;
class TapArea;
class Waveform;

/// The black pill and all that is in it, hanging from the middle of its top edge. Each change of
/// what it shows sets the targets of its springs, and each frame lays it out.
class Pill : public Item, private Animated {
    Q_OBJECT

public:
    /// All must outlive it; `windowSystem` shows the context menu.
    Pill(NotchRootView& view, FrameDriver& frames, platform::WindowSystem& windowSystem,
         Item* parent);
    ~Pill() override;

    /// Lays the pill out in a window of that size.
    void fill(QSizeF size);

    const PillShape& shape() const { return *shape_; }

    /// Where it is tapped: its whole rectangle and the reaches of its buttons, in the window.
    std::vector<Rect> reach() const;

private:
    std::optional<double> advance(double now) override;
    void redraw();
    void follow();
    void followPanel();
    bool isLineHeld() const;
    void tapBackground();
    void openMenu(QPointF position);
    void layOut();
    void layOutTexts();
    void layOutPanelLine();
    double backgroundHeight() const;
    double lineRoom() const;
    double bottomPadding() const;
    double collapsedHeight() const;
    double panelHeight() const;

    NotchRootView& view_;
    FrameDriver& frames_;
    platform::WindowSystem& windowSystem_;
    PillContent content_;
    PillShape* shape_;
    TapArea* background_;
    Item* inside_; ///< clips the texts
    LyricText* line_;
    LyricText* panelLine_ = nullptr; ///< there while the artwork panel is seen
    FloatingArtwork* artwork_;
    Waveform* waveform_;
    Grabber* grabber_;
    PillMotion motion_;
    std::unique_ptr<PillMenu> menu_; ///< made on demand
    Subscription redraws_;
};

} // namespace brellowind
