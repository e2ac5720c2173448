// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QTextLayout>

namespace brellowind {

/// Formats for drawing the emoji of `text` that are made of several characters (keycaps, flags,
/// skin tones, joined emoji) with the emoji font. Otherwise each of the characters would come from
/// the first font that has it.
QList<QTextLayout::FormatRange> emojiSequences(const QString& text);

} // namespace brellowind
