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

/// The smallest rectangle, in pixels, that holds all that is not clear.
QRect inkRect(const QImage& image);

/// The sum of all opacities, 0 to 1 each.
double ink(const QImage& image);

/// The largest difference of two channels at the same place. The images are of one size.
int largestDifference(const QImage& a, const QImage& b);

/// Draws nothing, but remembers how large the images are that it is given.
class ImageRecorder final : public QPaintDevice {
public:
    explicit ImageRecorder(QSize size);
    ~ImageRecorder() override;

    QPaintEngine* paintEngine() const override;

    /// The most pixels that one image had.
    qint64 largestImage() const;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;

    QSize size_;
    std::unique_ptr<Engine> engine_;
};

} // namespace brellowind::test
