// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>
#include <QWindow>

namespace brellowind::platform {

/// Gives the keyboard focus to a menu under XWayland, where grabs do not affect Wayland clients.
///
/// While the menu is shown, a managed transparent window of one point has the focus, so that
/// XWayland receives the keys. When it loses the focus, as by a click on another program's window,
/// the menu closes.
class XWaylandMenuFocus final : public QObject {
public:
    XWaylandMenuFocus();

    /// Call before `menu` is shown, at its final position. `menu` may be destroyed first.
    void attach(QWindow& menu);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show(QPoint position);
    void closeWithoutFocus();

    QPointer<QWindow> menu_;
    QWindow holder_;
};

} // namespace brellowind::platform
