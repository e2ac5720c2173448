// SPDX-License-Identifier: MIT

#pragma once

#include "views/scene/SceneWindow.h"

#include <QPointF>
#include <optional>
#include <vector>

namespace brellowind {

class NotchRootView;
class PillMenuEntry;

/// The context menu of the pill, a separate window. Pointer, arrow keys, Home, End and first
/// letters highlight an entry; Enter, space, a click, or releasing the button that opened the menu
/// triggers it. Escape closes the menu.
class PillMenu : public SceneWindow {
    Q_OBJECT

public:
    /// `view` executes the entries and must outlive this object.
    explicit PillMenu(NotchRootView& view);

    static constexpr double radius = 10; ///< of its corners

    QAccessible::Role accessibleRole() const override { return QAccessible::PopupMenu; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void highlight(PillMenuEntry* entry);
    void highlightBeside(int step);
    void highlightNext(const QString& letter);

    std::vector<PillMenuEntry*> entries_;
    PillMenuEntry* highlighted_ = nullptr;
    bool isPressed_ = false;
    std::optional<QPointF> dragBegan_; ///< with a button that was pressed outside
};

} // namespace brellowind
