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
};

} // namespace brellowind
