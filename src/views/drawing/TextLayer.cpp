// SPDX-License-Identifier: MIT

#include "views/drawing/TextLayer.h"

#include "views/drawing/Blur.h"
#include "views/drawing/Coverage.h"
#include "views/drawing/EmojiSequences.h"
#include "views/drawing/Ideographs.h"
#include "views/motion/Springs.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextOption>
#include <algorithm>
#include <cmath>

namespace brellowind {
namespace {

constexpr double strongestSigma = 5; ///< points, of an absent line
const double largestBlurExtent = std::ceil(blurExtent(strongestSigma));
constexpr double faintestSigma = 0.2; ///< a weaker blur looks sharp
constexpr double coarseSigma = 2;     ///< pixels; such a blur needs half the resolution only
constexpr double tolerance = 1e-3;
constexpr double smallestScale = 0.92; ///< of an absent line

/// After an overshoot of at most this much the next swing is less than 1/255 and invisible: each
/// swing of the spring has 1/26 of the previous amplitude.
constexpr double unseenSwing = 0.1;

/// In characters. Shorter texts are drawn as a whole.
constexpr qsizetype shortText = 256;
constexpr qsizetype glyphsInPiece = 32;

constexpr QChar emojiPresentation(0xFE0F);

/// Points by which glyphs may extend beyond the line's rectangle.
constexpr double inkOverhang = 6;

/// The nominal distance of a fade in points, which determines its frame rate.
constexpr double fadeDistance = 20;

/// `text` as it is drawn: with spaces instead of line breaks and other control characters, and with
/// notes in the text's colour instead of emoji, which are dark in most emoji fonts. Emoji fonts
/// have no glyph for the presentation selector; another font's would divide an emoji.
QString drawnText(QString text) {
    text.remove(emojiPresentation);
    text.replace(QStringLiteral("🎵"), QStringLiteral("♪"));
    text.replace(QStringLiteral("🎶"), QStringLiteral("♫"));
    for (QChar& character : text) {
        const auto category = character.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph)
            character = u' ';
    }
    return text;
}

/// `point` rounded to the pixels of `painter`, in the painter's coordinates.
QPointF onPixel(const QPainter& painter, QPointF point) {
    const QTransform& transform = painter.transform();
    if (!transform.isAffine() || transform.isRotating())
        return point;
    const double ratio = painter.device()->devicePixelRatioF();
    const QPointF pixel = transform.map(point) * ratio;
    const QPointF rounded(std::round(pixel.x()), std::round(pixel.y()));
    return transform.inverted().map(rounded / ratio);
}

} // namespace

TextLayer::TextLayer(const QString& text, const QFont& font, double presence)
    : text_(text), presence_(springs::morph, presence), shown_(presence) {
    layout_.setText(drawnText(text));
    layout_.setFont(font);
    layout_.setCacheEnabled(true);
    auto formats = emojiSequences(layout_.text());
    if (font.weight() == QFont::Medium)
        formats += regularIdeographs(layout_.text());
    layout_.setFormats(formats);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setUseDesignMetrics(false);
    layout_.setTextOption(option);
    layout_.beginLayout();
    QTextLine only = layout_.createLine();
    if (only.isValid()) {
        only.setLineWidth(1e6);
        // A fallback font may be taller; use the baseline of `font`.
        only.setPosition({0, QFontMetricsF(font).ascent() - only.ascent()});
        width_ = only.naturalTextWidth();
        // Otherwise right-to-left text would be aligned to the right end of a very wide line.
        only.setLineWidth(width_);
    }
    layout_.endLayout();
    if (layout_.text().size() > shortText)
        splitIntoPieces();
}

void TextLayer::splitIntoPieces() {
    for (const QGlyphRun& run : layout_.glyphRuns()) {
        const auto glyphs = run.glyphIndexes();
        const auto positions = run.positions();
        for (qsizetype first = 0; first < glyphs.size(); first += glyphsInPiece) {
            QGlyphRun& piece = pieces_.emplace_back();
            piece.setRawFont(run.rawFont());
            piece.setGlyphIndexes(glyphs.mid(first, glyphsInPiece));
            piece.setPositions(positions.mid(first, glyphsInPiece));
            piece.setBoundingRect(piece.boundingRect()); // cached by the glyph run
        }
    }
}

bool TextLayer::isRightToLeft() const {
    return layout_.text().isRightToLeft();
}

void TextLayer::moveTo(double presence, double now) {
    presence_.retarget(presence, now);
    resting_ = false;
}

std::optional<double> TextLayer::advance(double now) {
    resting_ = resting_ || isAtRest(now);
    shown_ = resting_ ? presence_.target() : presence_.value(now);
    if (resting_) {
        picture_ = blurred_ = QImage();
        return std::nullopt;
    }
    return fadeDistance * presence_.speed(now);
}

void TextLayer::paint(QPainter& painter, QColor color, double centre, double top, double left,
                      double right) {
    const double opacity = std::clamp(shown_, 0.0, 1.0);
    if (opacity <= 0)
        return;
    painter.save();
    painter.setOpacity(painter.opacity() * opacity);
    // Rounds the left end, not the centre, to align lines of any width to pixels.
    const QPointF origin = onPixel(painter, QPointF(centre - width_ / 2, top));
    if (resting_)
        paintSharp(painter, color, origin, left, right);
    else
        paintMoving(painter, color, origin, QRectF(left, top, right - left, 0));
    painter.restore();
}

/// Overshooting has no visible effect.
bool TextLayer::isAtRest(double now) const {
    const double value = presence_.value(now);
    const bool isBeyond = presence_.target() > 0 ? value >= 1 : value <= 0;
    return presence_.isSettled(now, isBeyond ? unseenSwing : tolerance);
}

double TextLayer::overhang() const {
    constexpr double rounding = 1; // of the line's origin to pixels
    return std::ceil(std::max(inkOverhang, blurExtent(sigma()))) + rounding;
}

double TextLayer::sigma() const {
    const double sigma = strongestSigma * (1 - std::clamp(shown_, 0.0, 1.0));
    return sigma < faintestSigma ? 0 : sigma;
}

double TextLayer::scale() const {
    constexpr double sharp = 1 - faintestSigma / strongestSigma; // and at full size
    return smallestScale + (1 - smallestScale) * std::clamp(shown_ / sharp, 0.0, 1.0);
}

void TextLayer::paintSharp(QPainter& painter, QColor color, QPointF origin, double left,
                           double right) const {
    painter.setPen(color);
    if (pieces_.empty())
        layout_.draw(&painter, origin);
    for (const QGlyphRun& piece : pieces_) {
        const QRectF rect = piece.boundingRect().translated(origin);
        if (rect.right() >= left && rect.left() <= right)
            painter.drawGlyphRun(origin, piece);
    }
}

void TextLayer::paintMoving(QPainter& painter, QColor color, QPointF origin, QRectF seen) {
    const double ratio = painter.device()->devicePixelRatioF();
    // Text further outside is not blurred into the visible part.
    const QRectF line =
        layout_.boundingRect().adjusted(-inkOverhang, -inkOverhang, inkOverhang, inkOverhang);
    // For every scale, since the picture is used for the whole motion.
    const double middleX = layout_.boundingRect().center().x();
    const auto unscaled = [&](double x) {
        return middleX + (x - origin.x() - middleX) / smallestScale;
    };
    const double left =
        std::max(line.left(), std::floor(unscaled(seen.left()) - largestBlurExtent));
    const double right =
        std::min(line.right(), std::ceil(unscaled(seen.right()) + largestBlurExtent));
    if (right <= left)
        return;
    // Aligned to pixels, like the line at rest; otherwise it would look softer.
    const QPointF corner(std::floor(left * ratio) / ratio, std::floor(line.top() * ratio) / ratio);
    const QRectF part(corner, QPointF(right, line.bottom()));
    renderPicture(part, color, ratio);
    blurPicture();
    paintShrunk(painter, blurredPart_.translated(origin + part.topLeft()),
                origin + layout_.boundingRect().center());
}

/// Draws `blurred_` in `target`, scaled down about `middle`. Scales the image first: scaling by the
/// painter uses threads.
void TextLayer::paintShrunk(QPainter& painter, const QRectF& target, QPointF middle) const {
    const auto shrunk = [&](QPointF corner) {
        return onPixel(painter, middle + (corner - middle) * scale());
    };
    const double ratio = picture_.devicePixelRatio();
    const QPointF from = shrunk(target.topLeft());
    const QPointF corner = (shrunk(target.bottomRight()) - from) * ratio;
    const QSize size(qRound(corner.x()), qRound(corner.y()));
    QImage image = blurred_.depth() == 8
                       ? tinted(blurred_, picturedColor_, size)
                       : blurred_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image.setDevicePixelRatio(ratio);
    painter.drawImage(from, image);
}

void TextLayer::renderPicture(QRectF part, QColor color, double ratio) {
    if (!picture_.isNull() && pictured_ == part && picturedColor_ == color &&
        picture_.devicePixelRatio() == ratio)
        return;
    const auto painted = [&](QColor in) {
        QImage image((part.size() * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::TextAntialiasing);
        paintSharp(painter, in, -part.topLeft(), 0, part.width());
        return image;
    };
    // Most text has one colour, unlike emoji: blurring one channel instead of four saves CPU time.
    const QImage white = painted(Qt::white);
    picture_ = white.convertToFormat(QImage::Format_Alpha8);
    if (tinted(picture_, Qt::white, picture_.size()) != white)
        picture_ = painted(color);
    pictured_ = part;
    picturedColor_ = color;
    blurred_ = QImage();
}

/// Does nothing if the radius is that of the last frame, as in most frames of a motion.
void TextLayer::blurPicture() {
    const double ratio = picture_.devicePixelRatio();
    double sigma = this->sigma() * ratio;
    int halvings = 0;
    for (; sigma >= coarseSigma; sigma /= 2)
        ++halvings;
    const int radius = blurRadius(sigma) << halvings;
    if (!blurred_.isNull() && radius == blurredRadius_)
        return;
    const int margin = std::max(0, radius - static_cast<int>(inkOverhang * ratio));
    blurred_ = picture_.copy(picture_.rect().adjusted(-margin, -margin, margin, margin));
    for (int i = 0; i < halvings; ++i)
        blurred_ = halved(blurred_);
    blur(blurred_, sigma);
    blurredPart_ = QRectF(QPointF(-margin, -margin) / ratio,
                          QSizeF(blurred_.size()) / blurred_.devicePixelRatio());
    blurredRadius_ = radius;
}

} // namespace brellowind
