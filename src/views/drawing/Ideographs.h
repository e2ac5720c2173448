#pragma once

#include <QList>
#include <QString>
#include <QTextLayout>

namespace brellowind {

/// Formats that show Chinese, Japanese and Korean in the regular face beside text of medium weight.
/// Their fonts often have a regular and a bold face only, of which Qt takes the bold one for
/// medium.
QList<QTextLayout::FormatRange> regularIdeographs(const QString& text);

} // namespace brellowind
