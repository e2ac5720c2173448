#include "platform/qt/QtApplication.h"

#include <QGuiApplication>
#include <QWindow>

namespace brellowind::platform {

void QtApplication::activate() {
    for (auto* window : QGuiApplication::topLevelWindows()) {
        const bool takesFocus = !window->flags().testFlag(Qt::WindowDoesNotAcceptFocus);
        if (window->isVisible() && takesFocus) {
            window->raise();
            window->requestActivate();
        }
    }
}

void QtApplication::terminate() {
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

} // namespace brellowind::platform
