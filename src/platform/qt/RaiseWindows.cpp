// SPDX-License-Identifier: MIT

#include "platform/qt/RaiseWindows.h"

#include <QGuiApplication>
#include <QWindow>

namespace brellowind::platform {

void raiseWindows() {
    for (auto* window : QGuiApplication::topLevelWindows()) {
        const bool takesFocus = !window->flags().testFlag(Qt::WindowDoesNotAcceptFocus);
        if (window->isVisible() && takesFocus) {
            window->raise();
            window->requestActivate();
        }
    }
}

} // namespace brellowind::platform
