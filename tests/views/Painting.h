// SPDX-License-Identifier: MIT

#pragma once

#include "views/scene/Item.h"

#include <QImage>
#include <QPaintDevice>
#include <QSize>
#include <functional>
#include <memory>

namespace brellowind::test {

/// What `paint` draws on a clear image of `size` points with `ratio` pixels to the point,
/// antialiased.
QImage painted(QSize size, const std::function<void(QPainter&)>& paint, double ratio = 1);

/// What `item` draws with its origin at `origin` of a clear image.
QImage painted(Item& item, QSize size, QPointF origin = {}, double ratio = 1);

/// The bounding rectangle of pixels that are not transparent.
QRect inkRect(const QImage& image);

/// The sum of the opacities, each from 0 to 1.
double ink(const QImage& image);

/// The largest difference in any channel of any pixel. The images must have the same size.
int largestDifference(const QImage& a, const QImage& b);

/// A paint device that draws nothing and records the sizes of the images.
class ImageRecorder final : public QPaintDevice {
public:
    explicit ImageRecorder(QSize size);
    ~ImageRecorder() override;

    QPaintEngine* paintEngine() const override;

    /// The number of pixels of the largest image.
    qint64 largestImage() const;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;

    QSize size_;
    std::unique_ptr<Engine> engine_;
};

} // namespace brellowind::test
