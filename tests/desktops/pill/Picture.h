#pragma once

#include <QColor>
#include <QImage>
#include <QRect>
#include <QString>
#include <optional>

namespace brellowind::test {

/// What a screen shows, in pixels.
class Picture {
public:
    explicit Picture(QImage image) : image_(std::move(image)) {}

    const QImage& image() const { return image_; }
    QColor at(QPointF pixel) const { return image_.pixelColor(pixel.toPoint()); }

    /// The smallest rectangle that holds all pixels of `within` that are not of `background`.
    QRect differing(const QColor& background, QRect within) const;
    QRect differing(const QColor& background) const { return differing(background, image_.rect()); }

    /// By how many pixels the outermost pixels of a row that are not of `background` are farther
    /// from the right edge of the picture than from the left one. Nothing when all are.
    std::optional<int> offCentre(int row, const QColor& background) const;

    /// The largest step in brightness between neighbours in a row of `within`, of 255.
    int sharpestStep(QRect within) const;

    /// How many of the columns of `within` that are not of one colour are the same as the one before
    /// them, from 0 to 1.
    double repeatedColumns(QRect within) const;

    /// Saves it for people to look at, and gives the file.
    QString keep(const QString& name) const;

private:
    QImage image_;
};

} // namespace brellowind::test
