// SPDX-License-Identifier: MIT

#include "views/drawing/EmojiSequences.h"

#include <gtest/gtest.h>

namespace brellowind {
namespace {

/// The parts of `text` that have the emoji font.
QStringList sequences(const QString& text) {
    QStringList parts;
    for (const auto& range : emojiSequences(text)) {
        EXPECT_FALSE(range.format.fontFamilies().toStringList().isEmpty());
        parts.append(text.mid(range.start, range.length));
    }
    return parts;
}

TEST(EmojiSequences, AreEmojiOfSeveralCharacters) {
    const QStringList parts{QStringLiteral("1⃣"),
                            QStringLiteral("#⃣"),
                            QStringLiteral("🇩🇪"),
                            QStringLiteral("👍🏽"),
                            QStringLiteral("✌🏽"),
                            QStringLiteral("👩‍🚀"),
                            QStringLiteral("👩‍👩‍👧"),
                            QStringLiteral("🏳‍🌈"),
                            QStringLiteral("❤‍🔥")};
    EXPECT_EQ(sequences(parts.join(QStringLiteral(" and "))), parts);
    EXPECT_EQ(sequences(parts.join(QString())), parts);
}

TEST(EmojiSequences, AreNothingElse) {
    for (const auto& text : {QString(), QStringLiteral("1 # a letter"), QStringLiteral("🏮🌙"),
                             QStringLiteral("e\u0301 Z̲a̲"), QStringLiteral("क्‍ष"),
                             QStringLiteral("夜𠀋"), QString(QChar(0xD83D))})
        EXPECT_TRUE(sequences(text).isEmpty()) << qPrintable(text);
}

} // namespace
} // namespace brellowind
