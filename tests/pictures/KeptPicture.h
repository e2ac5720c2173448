// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>

namespace brellowind::test {

/// Compares `actual` with the reference picture `name` for the current scale. Fails the test if
/// they differ, and saves both and the difference in the build folder. While pictures are being
/// renewed, saves `actual` as the reference.
void expectKept(QImage actual, const QString& name);

} // namespace brellowind::test
