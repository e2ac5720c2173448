#pragma once

#include "views/scene/SceneWindow.h"

#include <vector>

namespace brellowind {

class NotchRootView;
class PillMenuEntry;

/// The context menu of the pill, a small window of its own. The entry under the pointer is
/// highlighted; the arrow keys highlight another one, and Enter or the space bar chooses it. Escape
/// closes it.
class PillMenu : public SceneWindow {
    Q_OBJECT

public:
    /// `view`, which is told what is chosen, must outlive it.
    explicit PillMenu(NotchRootView& view);

    static constexpr double radius = 10; ///< of its corners

    QAccessible::Role accessibleRole() const override { return QAccessible::PopupMenu; }

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
