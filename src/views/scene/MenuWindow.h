#pragma once

#include "views/scene/SceneWindow.h"

namespace brellowind {

/// A window that the window system pops up. It closes on Escape.
class MenuWindow : public SceneWindow {
    Q_OBJECT

public:
    using SceneWindow::SceneWindow;

    /// Of its round corners.
    double radius() const { return 10; }

    QAccessible::Role accessibleRole() const override { return QAccessible::PopupMenu; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace brellowind
