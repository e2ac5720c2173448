// SPDX-License-Identifier: MIT

#include "views/drawing/PillShape.h"

#include "notch/NotchShape.h"
#include "platform/qt/PainterPath.h"
#include "views/drawing/Blur.h"
#include "views/scene/SceneWindow.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <limits>

namespace brellowind {
namespace {

using platform::painterPath;

constexpr double topRadius = 8;
constexpr double bottomRadius = 12;

constexpr double shadowOpacity = 0.5;
constexpr double shadowSigma = 20;
constexpr double shadowDrop = 10;
constexpr double shadowFade = 24; ///< points over which it fades out at the end of the window

/// The extent of the shadow beyond the pill.
double shadowExtent(double lift) {
    return std::ceil(blurExtent(shadowSigma * lift));
}

const NotchShape shape(topRadius, bottomRadius);

Rect rectOf(const QRectF& rect) {
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

Path notchPath(QSizeF size) {
    return shape.path({0, 0, size.width(), size.height()});
}

/// Fades out the rows of `alpha` between `top` and `top + height`.
void fadeOut(QImage& alpha, double top, double height) {
    for (int y = std::max(0, static_cast<int>(top)); y < alpha.height(); ++y) {
        const double share = std::clamp((top + height - (y + 1)) / height, 0.0, 1.0);
        auto* row = alpha.scanLine(y);
        std::transform(row, row + alpha.width(), row,
                       [share](uchar a) { return static_cast<uchar>(a * share); });
    }
}

/// The shadow of a pill of the height of `size`, and of the smallest width at which the middle
/// column is not affected by the ends, or the width of `size` if that is smaller. Faded out `room`
/// points below the pill.
QImage narrowShadow(QSizeF size, double lift, double room, double ratio) {
    const double extent = shadowExtent(lift);
    const double narrowest = 2 * (extent + topRadius + bottomRadius) + 1;
    const QSizeF pill(std::min(narrowest, size.width()), size.height());
    const QSizeF whole = pill + QSizeF(2 * extent, 2 * extent);
    QImage alpha((whole * ratio).toSize(), QImage::Format_Alpha8);
    alpha.fill(0);
    QPainter painter(&alpha);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(ratio, ratio);
    painter.translate(extent, extent);
    painter.fillPath(painterPath(notchPath(pill)),
                     QColor(0, 0, 0, static_cast<int>(255 * shadowOpacity)));
    painter.end();
    blur(alpha, shadowSigma * lift * ratio);
    const double drop = shadowDrop * lift;
    if (room < extent + drop) {
        const double fade = std::min(shadowFade, room);
        const double end = extent + size.height() + room - drop;
        fadeOut(alpha, (end - fade) * ratio, fade * ratio);
    }
    return alpha;
}

/// Black with `alpha`, with the middle column repeated up to `width` pixels.
QImage widened(const QImage& alpha, int width) {
    const QImage narrow = alpha.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const int added = width - narrow.width();
    if (added <= 0)
        return narrow;
    const int middle = narrow.width() / 2;
    QImage image(width, narrow.height(), narrow.format());
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(0, 0, narrow, 0, 0, middle);
    painter.drawImage(QRect(middle, 0, added, narrow.height()), narrow,
                      QRect(middle, 0, 1, narrow.height()));
    painter.drawImage(middle + added, 0, narrow, middle, 0);
    return image;
}

} // namespace

PillShape::PillShape(Item* parent) : PainterItem(parent) {}

double PillShape::flare() const {
    return topRadius;
}

void PillShape::setLift(double lift) {
    if (lift == lift_)
        return;
    lift_ = lift;
    if (lift_ <= 0)
        shadow_ = QImage();
    update();
}

Path PillShape::outline() const {
    return notchPath(size());
}

QRectF PillShape::paintedRect() const {
    if (lift_ <= 0)
        return boundingRect();
    const double extent = shadowExtent(lift_);
    return boundingRect().adjusted(-extent, 0, extent, extent + std::ceil(shadowDrop * lift_));
}

void PillShape::paint(QPainter& painter) {
    // Inside the outline a rectangle is enough: neither edge nor shadow is visible.
    if (painter.hasClipping() &&
        shape.contains(rectOf(boundingRect()), rectOf(painter.clipBoundingRect()))) {
        painter.fillRect(boundingRect(), Qt::black);
        return;
    }
    if (lift_ > 0)
        paintShadow(painter);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawPath(painterPath(outline()));
}

/// Blurs again when a parameter has changed, as in every frame of a motion.
void PillShape::paintShadow(QPainter& painter) {
    const double ratio = pixelRatio();
    const double extent = shadowExtent(lift_);
    const Cast cast{.pill = size(), .lift = lift_, .room = roomBelow()};
    if (shadow_.isNull() || cast != cast_ || shadow_.devicePixelRatio() != ratio) {
        shadow_ = widened(narrowShadow(cast.pill, cast.lift, cast.room, ratio),
                          static_cast<int>(std::lround((cast.pill.width() + 2 * extent) * ratio)));
        shadow_.setDevicePixelRatio(ratio);
        cast_ = cast;
    }
    painter.save();
    painter.setOpacity(painter.opacity() * std::clamp(lift_, 0.0, 1.0));
    painter.drawImage(QPointF(-extent, shadowDrop * lift_ - extent), shadow_);
    painter.restore();
}

/// Points from the pill's lower edge to that of the window.
double PillShape::roomBelow() const {
    if (!window())
        return std::numeric_limits<double>::infinity();
    return std::max(1.0, mapFromScene(QPointF(0, window()->height())).y() - height());
}

} // namespace brellowind
