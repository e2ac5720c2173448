// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowSystem.h"
#include "platform/linux/x11/CompositingManager.h"
#include "platform/linux/x11/X11Connection.h"

#include <QObject>
#include <QPointer>
#include <QWindow>

namespace brellowind::platform {

/// Shows a window as a popup that grabs pointer and keyboard while it is shown. Its corners are
/// round also without a compositing manager.
class X11Popup final : public QObject {
public:
    /// Closes a popup that is shown.
    void show(const Popup& popup);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void hold();
    void release();
    bool handlePress(const QObject* receiver, const QEvent* event);
    bool handleKey(const QObject* receiver, QEvent* event);

    X11Connection x11_;
    CompositingManager compositingManager_{x11_, [] {}};
    QPointer<QWindow> window_; ///< while shown
    bool held_ = false;
};

} // namespace brellowind::platform
