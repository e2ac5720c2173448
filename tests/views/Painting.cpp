// SPDX-License-Identifier: MIT

#include "views/Painting.h"

#include <QPaintEngine>
#include <QPainter>
#include <algorithm>
#include <cstdlib>

namespace brellowind::test {

class ImageRecorder::Engine final : public QPaintEngine {
public:
    Engine() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice* device) override {
        Q_UNUSED(device)
        return true;
    }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState& newState) override { Q_UNUSED(newState) }
    void drawPath(const QPainterPath& path) override { Q_UNUSED(path) }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
        Q_UNUSED(points)
        Q_UNUSED(count)
        Q_UNUSED(mode)
    }
    void drawTextItem(const QPointF& position, const QTextItem& item) override {
        Q_UNUSED(position)
        Q_UNUSED(item)
    }
    void drawPixmap(const QRectF& target, const QPixmap& pixmap, const QRectF& source) override {
        Q_UNUSED(target)
        Q_UNUSED(source)
        see(pixmap.size());
    }
    void drawImage(const QRectF& target, const QImage& image, const QRectF& source,
                   Qt::ImageConversionFlags flags) override {
        Q_UNUSED(target)
        Q_UNUSED(source)
        Q_UNUSED(flags)
        see(image.size());
    }

    qint64 largest = 0;

private:
    void see(QSize size) {
        largest = std::max(largest, static_cast<qint64>(size.width()) * size.height());
    }
};

QImage painted(QSize size, const std::function<void(QPainter&)>& paint, double ratio) {
    QImage image((QSizeF(size) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    paint(painter);
    painter.end();
    return image;
}

QImage painted(Item& item, QSize size, QPointF origin, double ratio) {
    return painted(
        size,
        [&](QPainter& painter) {
            painter.translate(origin);
            item.paint(painter);
        },
        ratio);
}

QRect inkRect(const QImage& image) {
    QRect rect;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > 0)
                rect |= QRect(x, y, 1, 1);
    return rect;
}

double ink(const QImage& image) {
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += qAlpha(image.pixel(x, y)) / 255.0;
    return sum;
}

int largestDifference(const QImage& a, const QImage& b) {
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        const uchar* left = a.constScanLine(y);
        const uchar* right = b.constScanLine(y);
        for (int i = 0; i < a.width() * a.depth() / 8; ++i)
            largest = std::max(largest, std::abs(left[i] - right[i]));
    }
    return largest;
}

ImageRecorder::ImageRecorder(QSize size) : size_(size), engine_(std::make_unique<Engine>()) {}

ImageRecorder::~ImageRecorder() = default;

QPaintEngine* ImageRecorder::paintEngine() const {
    return engine_.get();
}

qint64 ImageRecorder::largestImage() const {
    return engine_->largest;
}

int ImageRecorder::metric(PaintDeviceMetric metric) const {
    switch (metric) {
    case PdmWidth:
        return size_.width();
    case PdmHeight:
        return size_.height();
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return 96;
    case PdmDepth:
        return 32;
    default:
        return QPaintDevice::metric(metric);
    }
}

} // namespace brellowind::test
