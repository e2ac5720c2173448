// SPDX-License-Identifier: MIT

#include "platform/qt/QtApplication.h"

#include <QCoreApplication>

namespace brellowind::platform {

void QtApplication::terminate() {
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

} // namespace brellowind::platform
