#pragma once

#include "foundation/Spring.h"

#include <QColor>
#include <QFont>
#include <QGlyphRun>
#include <QImage>
#include <QString>
#include <QTextLayout>
#include <optional>
#include <vector>

class QPainter;

namespace brellowind {

/// One line of text on its way in or out: laid out once, blurred, a little smaller and clear when
/// it is away, sharp and opaque when it is there.
class TextLayer {
public:
    /// `presence` is its initial state: 0 away, 1 there.
    TextLayer(const QString& text, const QFont& font, double presence);

    const QString& text() const { return text_; }
    double width() const { return width_; }
    bool isRightToLeft() const;

    /// How far it has glided from its beginning, in points.
    double offset() const { return offset_; }
    void setOffset(double offset) { offset_ = offset; }

    void comeIn(double now) { moveTo(1, now); }
    void goAway(double now) { moveTo(0, now); }

    /// Shows the moment `now` and tells how fast it changes, as what is `Animated` does.
    std::optional<double> advance(double now);

    /// Neither coming nor going.
    bool isResting() const { return resting_; }

    /// At rest and away.
    bool isGone() const { return shown_ <= 0 && resting_; }

    /// Draws the line with its middle at `centre` and its top at `top`. The painter's device shows
    /// what lies between `left` and `right`; the rest may be left out.
    void paint(QPainter& painter, QColor color, double centre, double top, double left,
               double right);

    /// How far beyond the line's rectangle it draws now, in points.
    double overhang() const;

private:
    void moveTo(double presence, double now);
    bool isAtRest(double now) const;
    double sigma() const;
    double scale() const;
    void takeApart();
    void paintSharp(QPainter& painter, QColor color, QPointF origin, double left,
                    double right) const;
    void paintMoving(QPainter& painter, QColor color, QPointF origin, QRectF seen);
    void paintShrunk(QPainter& painter, const QRectF& place, QPointF middle) const;
    void takePicture(QRectF part, QColor color, double ratio);
    void blurPicture(int radius);

    QString text_;
    QTextLayout layout_;
    std::vector<QGlyphRun> pieces_; ///< of a text so long that drawing all of it takes its time
    double width_ = 0;
    double offset_ = 0;
    Spring presence_;
    double shown_;
    bool resting_ = true; ///< it shows no further change
    QImage picture_;      ///< the part `pictured_` of the line, sharp; null while it rests
    QRectF pictured_;     ///< relative to the line's origin
    QColor picturedColor_;
    QImage blurred_;        ///< `picture_` with room around it; null until it is drawn
    int blurredRadius_ = 0; ///< of its blur, in pixels
};

} // namespace brellowind
