// SPDX-License-Identifier: MIT

#include "views/drawing/Ideographs.h"

#include <QTextCharFormat>

namespace brellowind {
namespace {

/// Whether `character` belongs to a script whose fonts often have a regular and a bold face only.
bool isIdeographic(char32_t character) {
    switch (QChar::script(character)) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Hangul:
    case QChar::Script_Bopomofo:
        return true;
    default: // CJK punctuation and full-width letters
        return (character >= 0x3000 && character <= 0x303F) ||
               (character >= 0xFF00 && character <= 0xFFEF);
    }
}

} // namespace

QList<QTextLayout::FormatRange> regularIdeographs(const QString& text) {
    QList<QTextLayout::FormatRange> ranges;
    for (qsizetype at = 0; at < text.size();) {
        const bool isPair = text.at(at).isHighSurrogate() && at + 1 < text.size();
        const char32_t character =
            isPair ? QChar::surrogateToUcs4(text.at(at), text.at(at + 1)) : text.at(at).unicode();
        const int length = isPair ? 2 : 1;
        if (isIdeographic(character)) {
            const bool goesOn =
                !ranges.isEmpty() && ranges.last().start + ranges.last().length == at;
            if (goesOn) {
                ranges.last().length += length;
            } else {
                QTextCharFormat regular;
                regular.setFontWeight(QFont::Normal);
                ranges.append({static_cast<int>(at), length, regular});
            }
        }
        at += length;
    }
    return ranges;
}

} // namespace brellowind
