#pragma once

#include "views/interaction/MenuWindow.h"

namespace brellowind {

class NotchRootModel;

/// The context menu of the pill, a small window of its own.
class PillMenu : public MenuWindow {
    Q_OBJECT

public:
    /// `model`, which is told what is chosen, must outlive it.
    explicit PillMenu(NotchRootModel& model);

    /// Shows it with its corner at a point of the desktop, or as near as the screen's edges allow.
    void popup(QPoint position);
};

} // namespace brellowind
