#pragma once

#include "views/scene/MenuWindow.h"

#include <vector>

namespace brellowind {

class NotchRootView;
class PillMenuEntry;

/// The context menu of the pill, a small window of its own. The entry under the pointer is
/// highlighted; the arrow keys highlight another one, and Enter or the space bar chooses it.
class PillMenu : public MenuWindow {
    Q_OBJECT

public:
    /// `view`, which is told what is chosen, must outlive it.
    explicit PillMenu(NotchRootView& view);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void highlight(PillMenuEntry* entry);
    void highlightBeside(int step);

    std::vector<PillMenuEntry*> entries_;
    PillMenuEntry* highlighted_ = nullptr;
};

} // namespace brellowind
