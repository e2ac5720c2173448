// SPDX-License-Identifier: MIT

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

/// One line of text that fades in or out. Laid out once; absent it is blurred, a little smaller and
/// transparent, present it is sharp and opaque.
class TextLayer {
public:
    /// `presence` is the initial state: 0 absent, 1 present.
    TextLayer(const QString& text, const QFont& font, double presence);

    const QString& text() const { return text_; }
    double width() const { return width_; }
    bool isRightToLeft() const;

    /// The scroll position, in points from the beginning of the text.
    double offset() const { return offset_; }
    void setOffset(double offset) { offset_ = offset; }

    void fadeIn(double now) { moveTo(1, now); }
    void fadeOut(double now) { moveTo(0, now); }

    /// As `Animated::advance`.
    std::optional<double> advance(double now);

    /// Whether no fade is running.
    bool isResting() const { return resting_; }

    /// Whether it has faded out.
    bool isGone() const { return shown_ <= 0 && resting_; }

    /// Draws the line with its centre at `centre` and its top at `top`. Only the part between
    /// `left` and `right` is visible; the rest may be skipped.
    void paint(QPainter& painter, QColor color, double centre, double top, double left,
               double right);

    /// The extent of the drawing beyond the line's rectangle, in points.
    double overhang() const;

private:
    void moveTo(double presence, double now);
    bool isAtRest(double now) const;
    double sigma() const;
    double scale() const;
    void splitIntoPieces();
    void paintSharp(QPainter& painter, QColor color, QPointF origin, double left,
                    double right) const;
    void paintMoving(QPainter& painter, QColor color, QPointF origin, QRectF seen);
    void paintShrunk(QPainter& painter, const QRectF& target, QPointF middle) const;
    void renderPicture(QRectF part, QColor color, double ratio);
    void blurPicture();

    QString text_;
    QTextLayout layout_;
    std::vector<QGlyphRun> pieces_; ///< of a long text, to draw the visible ones only
    double width_ = 0;
    double offset_ = 0;
    Spring presence_;
    double shown_;
    bool resting_ = true; ///< the fade has ended
    QImage picture_;      ///< the part `pictured_` of the line, sharp; null at rest
    QRectF pictured_;     ///< relative to the line's origin
    QColor picturedColor_;
    QImage blurred_;        ///< `picture_` with a margin, blurred; null until it is drawn
    QRectF blurredPart_;    ///< of `blurred_`, relative to the picture's corner
    int blurredRadius_ = 0; ///< in pixels
};

} // namespace brellowind
