// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QImage>
#include <QRect>
#include <QString>
#include <optional>

namespace brellowind::test {

/// A screenshot, in pixels.
class Picture {
public:
    explicit Picture(QImage image) : image_(std::move(image)) {}

    const QImage& image() const { return image_; }
    QColor at(QPointF pixel) const { return image_.pixelColor(pixel.toPoint()); }

    /// The bounding rectangle of the pixels of `within` that differ from `background`.
    QRect differing(const QColor& background, QRect within) const;
    QRect differing(const QColor& background) const { return differing(background, image_.rect()); }

    /// For a row's pixels that differ from `background`: the right margin minus the left margin.
    /// Returns nullopt if there are none.
    std::optional<int> offCentre(int row, const QColor& background) const;

    /// The largest step in brightness between neighbours in a row of `within`, of 255.
    int sharpestStep(QRect within) const;

    /// How many of the columns of `within` that are not of one colour are the same as the one
    /// before them, from 0 to 1.
    double repeatedColumns(QRect within) const;

    /// Saves the picture for review. Returns the file name.
    QString keep(const QString& name) const;

private:
    QImage image_;
};

} // namespace brellowind::test
