#include "views/pill/ArtworkCaption.h"

#include "views/pill/Style.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

namespace brellowind {
namespace {

constexpr double padding = 10;
constexpr double gap = 2;

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

/// Draws one line at the top of `rect`, at the side where its script begins.
void drawLine(QPainter& painter, const QRectF& rect, const QString& text, const QFont& font,
              const QColor& color) {
    painter.setFont(font);
    painter.setPen(color);
    const QString cut = QFontMetricsF(font).elidedText(text, Qt::ElideRight, rect.width());
    painter.drawText(rect, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, cut);
}

} // namespace

ArtworkCaption::ArtworkCaption(Item* parent)
    : VisualEffectBlur(style::artworkSide, style::artworkRadius, parent) {
    setSize({style::artworkSide,
             2 * padding + lineHeight(artistFont()) + gap + lineHeight(titleFont())});
}

void ArtworkCaption::setTexts(const QString& artist, const QString& title) {
    if (artist == artist_ && title == title_)
        return;
    artist_ = artist;
    title_ = title;
    update();
}

void ArtworkCaption::paint(QPainter& painter) {
    VisualEffectBlur::paint(painter);
    QRectF line(style::panelSidePadding, padding, width() - 2 * style::panelSidePadding,
                lineHeight(artistFont()));
    drawLine(painter, line, artist_, artistFont(), artistColor);
    line.translate(0, line.height() + gap);
    line.setHeight(lineHeight(titleFont()));
    drawLine(painter, line, title_, titleFont(), titleColor);
}

} // namespace brellowind
