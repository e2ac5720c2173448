#pragma once

#include <QImage>
#include <QString>

namespace brellowind::test {

/// Compares `actual` with the picture that is kept under `name` for the present scale, and fails
/// the running test when they differ; both then lie in the build folder with what differs. While
/// pictures are renewed it is kept instead.
void expectKept(QImage actual, const QString& name);

} // namespace brellowind::test
