// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QTextLayout>

namespace brellowind {

/// Formats for drawing Chinese, Japanese and Korean characters of a text of medium weight with the
/// regular face. Many of their fonts have a regular and a bold face only, and Qt substitutes bold
/// for medium.
QList<QTextLayout::FormatRange> regularIdeographs(const QString& text);

} // namespace brellowind
