// SPDX-License-Identifier: MIT

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

/// The black pill and its contents, positioned by the middle of its top edge. Each change of the
/// content sets the targets of the springs; each frame does the layout.
class Pill : public Item, private Animated {
    Q_OBJECT

public:
    /// All references must outlive this object. `windowSystem` shows the context menu.
    Pill(NotchRootView& view, FrameDriver& frames, platform::WindowSystem& windowSystem,
         Item* parent);
    ~Pill() override;

    /// Lays out the pill in a window of `size`.
    void fill(QSizeF size);

    const PillShape& shape() const { return *shape_; }

    /// The input areas: its whole rectangle and those of its buttons, in the window.
    std::vector<Rect> inputRects() const;

private:
    std::optional<double> advance(double now) override;
    void redraw();
    void refresh();
    void updatePanel();
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
    LyricText* panelLine_ = nullptr; ///< exists while the artwork panel is visible
    FloatingArtwork* artwork_;
    Waveform* waveform_;
    Grabber* grabber_;
    PillMotion motion_;
    std::unique_ptr<PillMenu> menu_; ///< made on demand
    Subscription redraws_;
};

} // namespace brellowind
