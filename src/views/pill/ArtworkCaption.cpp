// SPDX-License-Identifier: MIT

#include "views/pill/ArtworkCaption.h"

#include "views/drawing/LyricText.h"
#include "views/pill/Style.h"

#include <QFontMetricsF>
#include <cmath>

namespace brellowind {
namespace {

constexpr double padding = 10;
constexpr double gap = 2;
constexpr double room = style::artworkSide - 2 * style::panelSidePadding;

const QColor artistColor = QColor::fromRgbF(1, 1, 1, 0.75F);
const QColor titleColor = Qt::white;

QFont artistFont() {
    return style::font(11, QFont::Medium);
}

QFont titleFont() {
    return style::font(14, QFont::DemiBold);
}

double lineHeight(const QFont& font) {
    return std::ceil(QFontMetricsF(font).height());
}

} // namespace

ArtworkCaption::ArtworkCaption(FrameDriver& frames, Item* parent)
    : VisualEffectBlur(style::artworkSide, style::artworkRadius, parent), frames_(frames) {
    setSize({style::artworkSide,
             2 * padding + lineHeight(artistFont()) + gap + lineHeight(titleFont())});
}

void ArtworkCaption::setTexts(const QString& artist, const QString& title) {
    show(artist_, artist, artistFont(), artistColor, padding);
    show(title_, title, titleFont(), titleColor, padding + lineHeight(artistFont()) + gap);
}

/// Replaces the text without animation, aligned to the start of its writing direction.
void ArtworkCaption::show(LyricText*& line, const QString& text, const QFont& font,
                          const QColor& color, double top) {
    if (line && line->text() == text)
        return;
    delete line;
    line = new LyricText({font, color, room}, text, true, frames_, this);
    const double beside = line->isRightToLeft() ? room - line->width() : 0;
    line->setPosition({style::panelSidePadding + beside, top});
}

} // namespace brellowind
