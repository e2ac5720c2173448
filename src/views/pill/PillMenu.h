#pragma once

#include "views/scene/MenuWindow.h"

namespace brellowind {

class NotchRootView;

/// The context menu of the pill, a small window of its own.
class PillMenu : public MenuWindow {
    Q_OBJECT

public:
    /// `view`, which is told what is chosen, must outlive it.
    explicit PillMenu(NotchRootView& view);

    /// Shows it with its corner at a point of the desktop, or as near as the screen's edges allow.
    void popup(QPoint position);
};

} // namespace brellowind
