// SPDX-License-Identifier: MIT

#include "LoopObserver.h"

#include <QDBusConnection>

namespace brellowind::test {

bool LoopObserver::listen() {
    return QDBusConnection::sessionBus().registerObject(QStringLiteral("/loop"), this,
                                                        QDBusConnection::ExportScriptableContents);
}

qlonglong LoopObserver::LongestTurn() {
    const auto longest = watch_.longestTurn();
    watch_.forget();
    return longest.count();
}

} // namespace brellowind::test
