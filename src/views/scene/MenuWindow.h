#pragma once

#include "views/scene/SceneWindow.h"

namespace brellowind {

/// A window that pops up over all others. While it is shown every click and key is its own, and it
/// closes on Escape and on a press beside it; that press does nothing else. Its corners are round,
/// also where nothing makes windows transparent.
class MenuWindow : public SceneWindow {
    Q_OBJECT

public:
    explicit MenuWindow(QWindow* parent = nullptr);

    double radius() const { return 10; }

    QAccessible::Role accessibleRole() const override { return QAccessible::PopupMenu; }

    bool eventFilter(QObject* receiver, QEvent* event) override;

protected:
    void showEvent(QShowEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool isDismissedBy(const QObject* receiver, const QEvent* event) const;
    void hold(bool held);

    bool held_ = false;
};

} // namespace brellowind
