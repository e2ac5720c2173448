// SPDX-License-Identifier: MIT

#include "views/drawing/EmojiSequences.h"

#include <QTextBoundaryFinder>
#include <QTextCharFormat>
#include <algorithm>

namespace brellowind {
namespace {

constexpr char32_t enclosingKeycap = 0x20E3;

bool isPictograph(char32_t character) {
    return character >= 0x1F000 && character <= 0x1FAFF;
}

bool isSequence(const QString& cluster) {
    const auto characters = cluster.toUcs4();
    return characters.contains(enclosingKeycap) ||
           (characters.size() > 1 && std::ranges::any_of(characters, isPictograph));
}

QTextCharFormat emojiFormat() {
    QTextCharFormat format;
    // The first is a name that fontconfig resolves.
    format.setFontFamilies({QStringLiteral("emoji"), QStringLiteral("Apple Color Emoji")});
    return format;
}

} // namespace

QList<QTextLayout::FormatRange> emojiSequences(const QString& text) {
    QList<QTextLayout::FormatRange> ranges;
    QTextBoundaryFinder clusters(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype at = 0, next = clusters.toNextBoundary(); next > at;
         at = next, next = clusters.toNextBoundary())
        if (next - at > 1 && isSequence(text.mid(at, next - at)))
            ranges.append({static_cast<int>(at), static_cast<int>(next - at), emojiFormat()});
    return ranges;
}

} // namespace brellowind
