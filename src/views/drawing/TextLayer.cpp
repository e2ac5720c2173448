#include "views/drawing/TextLayer.h"

#include "views/drawing/Blur.h"
#include "views/drawing/Coverage.h"
#include "views/motion/Springs.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextOption>
#include <algorithm>
#include <cmath>

namespace brellowind {
namespace {

constexpr double strongestSigma = 5;  ///< points, of a line that is away
constexpr double faintestSigma = 0.2; ///< a weaker blur looks sharp
constexpr double tolerance = 1e-3;

/// Coming or going changes a line as much as moving it by so many points.
constexpr double presenceReach = 20;

/// What one line shows of `text`: line breaks and other control characters take no line and no
/// glyph of their own.
QString singleLine(QString text) {
    for (QChar& character : text) {
        const auto category = character.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph)
            character = u' ';
    }
    return text;
}

/// The pixel of `painter` that is nearest to `point`, in the painter's coordinates.
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

TextLayer::TextLayer(const QString& text, const QFont& font, double maximumWidth, double presence)
    : text_(text), presence_(springs::morph, presence), shown_(presence) {
    QString line = singleLine(text);
    if (maximumWidth > 0)
        line = QFontMetricsF(font).elidedText(line, Qt::ElideRight, maximumWidth);
    layout_.setText(line);
    layout_.setFont(font);
    layout_.setCacheEnabled(true);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setUseDesignMetrics(false);
    layout_.setTextOption(option);
    layout_.beginLayout();
    QTextLine only = layout_.createLine();
    if (only.isValid()) {
        only.setLineWidth(1e6);
        // Another script's font may be higher: all stand on the same line all the same.
        only.setPosition({0, QFontMetricsF(font).ascent() - only.ascent()});
        width_ = only.naturalTextWidth();
        // Text from right to left would stand at the far end of that line.
        only.setLineWidth(width_);
    }
    layout_.endLayout();
}

std::optional<double> TextLayer::advance(double now) {
    resting_ = presence_.isSettled(now, tolerance);
    shown_ = resting_ ? presence_.target() : presence_.value(now);
    if (resting_)
        return std::nullopt;
    return presenceReach * presence_.speed(now);
}

void TextLayer::paint(QPainter& painter, QColor color, double centre, double top, double left,
                      double right) {
    const double opacity = std::clamp(shown_, 0.0, 1.0);
    if (opacity <= 0)
        return;
    painter.save();
    painter.setOpacity(painter.opacity() * opacity);
    // Rounding the left end, not the middle, keeps a line of any width on whole pixels.
    const QPointF origin = onPixel(painter, QPointF(centre - width_ / 2, top));
    const double sigma = strongestSigma * (1 - opacity);
    if (sigma < faintestSigma)
        paintSharp(painter, color, origin);
    else
        paintBlurred(painter, color, origin, QRectF(left, top, right - left, 0));
    painter.restore();
}

double TextLayer::overhang() {
    return std::ceil(blurReach(strongestSigma));
}

void TextLayer::paintSharp(QPainter& painter, QColor color, QPointF origin) const {
    painter.setPen(color);
    layout_.draw(&painter, origin);
}

void TextLayer::paintBlurred(QPainter& painter, QColor color, QPointF origin, QRectF seen) {
    const double ratio = painter.device()->devicePixelRatioF();
    const double sigma = strongestSigma * (1 - std::clamp(shown_, 0.0, 1.0));
    const double reach = std::ceil(blurReach(sigma));
    const QRectF line = layout_.boundingRect().translated(origin);
    const QRectF drawn = line.adjusted(-reach, -reach, reach, reach);
    const double left = std::max(drawn.left(), seen.left() - reach);
    const double right = std::min(drawn.right(), seen.right() + reach);
    if (right <= left)
        return;
    const auto sharp = [&](QColor in) {
        QImage image((QSizeF(right - left, drawn.height()) * ratio).toSize(),
                     QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::transparent);
        QPainter onImage(&image);
        onImage.setRenderHint(QPainter::TextAntialiasing);
        paintSharp(onImage, in, origin - QPointF(left, drawn.top()));
        return image;
    };
    // Nearly all text has one colour, and one channel is a quarter of the work.
    QImage image = coverage(sharp(Qt::white));
    const bool hasColours = image.isNull();
    if (hasColours)
        image = sharp(color);
    blur(image, sigma * ratio);
    painter.drawImage(QPointF(left, drawn.top()), hasColours ? image : tinted(image, color));
}

} // namespace brellowind
