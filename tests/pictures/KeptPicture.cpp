// SPDX-License-Identifier: MIT

#include "pictures/KeptPicture.h"

#include "pictures/Comparison.h"

#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <gtest/gtest.h>

namespace brellowind::test {

void expectKept(QImage actual, const QString& name) {
    ASSERT_FALSE(actual.isNull());
    actual.setDevicePixelRatio(1);
    const int scale = static_cast<int>(QGuiApplication::primaryScreen()->devicePixelRatio());
    const QString file = QStringLiteral("%1@%2x.png").arg(name).arg(scale);
    const QDir kept(QStringLiteral(BRELLOWIND_KEPT_PICTURES));
    if (qEnvironmentVariableIsSet("BRELLOWIND_RENEW_PICTURES")) {
        ASSERT_TRUE(actual.save(kept.filePath(file)));
        return;
    }
    const auto difference = compare(actual, QImage(kept.filePath(file)));
    if (agree(difference))
        return;
    QDir().mkpath(QStringLiteral(BRELLOWIND_DIFFERING_PICTURES));
    const QDir differing(QStringLiteral(BRELLOWIND_DIFFERING_PICTURES));
    const QString shown = differing.filePath(file);
    const QString compared = differing.filePath(QStringLiteral("difference-") + file);
    actual.save(shown);
    difference.image.save(compared);
    ADD_FAILURE() << 100 * difference.fraction << " % of the pixels of a tile differ from "
                  << qPrintable(kept.filePath(file)) << "\n  now: " << qPrintable(shown)
                  << "\n  difference: " << qPrintable(compared);
}

} // namespace brellowind::test
