// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Pointer.h"
#include "platform/WindowSystem.h"
#include "platform/macos/window/HoverEvents.h"

#include <QObject>
#include <QWindow>
#include <functional>
#include <memory>

namespace brellowind::platform {

/// Shows a window as a popup above an overlay on macOS. A press on another window of the program
/// closes it here, one on another program's window in Qt. While the program is inactive the keys
/// are another program's.
class MacPopup final : public QObject {
public:
    /// `pointer` outlives it.
    explicit MacPopup(Pointer& pointer) : pointer_(pointer) {}

    /// Closes the one that is shown. `onClose` runs when this one is closed.
    void show(const Popup& popup, std::function<void()> onClose);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    /// What there is while a popup is shown.
    struct Shown {
        Shown(QWindow& shownWindow, std::function<void()> handler)
            : window(shownWindow), onClose(std::move(handler)), hover(shownWindow) {}

        QWindow& window;
        std::function<void()> onClose;
        HoverEvents hover;
        Subscription monitor;
    };

    void updateHover();
    void release();

    Pointer& pointer_;
    std::unique_ptr<Shown> shown_;
};

} // namespace brellowind::platform
