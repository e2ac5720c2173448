#pragma once

#include <QObject>
#include <QPointer>
#include <QWindow>

namespace brellowind::platform {

/// Gives the keyboard to a menu under XWayland, where a grab holds neither keys nor presses that
/// are for other programs.
///
/// While the menu is shown there is a clear window of one point that the window manager gives the
/// focus, so that the X server gets the keys. When it loses the focus, as by a press on a window of
/// another program, the menu closes.
class XWaylandMenuFocus final : public QObject {
public:
    XWaylandMenuFocus();

    /// `menu` is about to be shown, in its place. It outlives this or is followed no more.
    void follow(QWindow& menu);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show(QPoint place);
    void closeWithoutFocus();

    QPointer<QWindow> menu_;
    QWindow holder_;
};

} // namespace brellowind::platform
