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
};

} // namespace brellowind
