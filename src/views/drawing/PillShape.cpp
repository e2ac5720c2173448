#include "views/drawing/PillShape.h"

#include "notch/NotchShape.h"
#include "platform/qt/PainterPath.h"
#include "views/drawing/Blur.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace brellowind {
namespace {

using platform::painterPath;

constexpr double topRadius = 8;
constexpr double bottomRadius = 12;

constexpr double shadowOpacity = 0.5;
constexpr double shadowSigma = 10; ///< a shadow of radius 20
constexpr double shadowDrop = 10;

const double shadowReach = std::ceil(blurReach(shadowSigma));

const NotchShape shape(topRadius, bottomRadius);

Rect rectOf(const QRectF& rect) {
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

Path notchPath(QSizeF size) {
    return shape.path({0, 0, size.width(), size.height()});
}

/// The blurred alpha of a pill as high as `size` and just so wide that its middle column knows
/// nothing of either end, if `size` is not narrower itself.
QImage narrowShadow(QSizeF size, double ratio) {
    const double narrowest = 2 * (shadowReach + topRadius + bottomRadius) + 1;
    const QSizeF pill(std::min(narrowest, size.width()), size.height());
    const QSizeF whole = pill + QSizeF(2 * shadowReach, 2 * shadowReach);
    QImage alpha((whole * ratio).toSize(), QImage::Format_Alpha8);
    alpha.fill(0);
    QPainter painter(&alpha);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(ratio, ratio);
    painter.translate(shadowReach, shadowReach);
    painter.fillPath(painterPath(notchPath(pill)),
                     QColor(0, 0, 0, static_cast<int>(255 * shadowOpacity)));
    painter.end();
    blur(alpha, shadowSigma * ratio);
    return alpha;
}

/// A shadow so wide that nobody sees its ends: a line without end casts none without end.
double widestShadow(const QPainter& painter) {
    const auto* device = painter.device();
    const double seen = device->width() / device->devicePixelRatioF();
    return 2 * std::ceil(seen / 2 + shadowReach + topRadius + bottomRadius);
}

/// Black with `alpha`, whose middle column is drawn out until it is `width` pixels wide.
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
    return boundingRect().adjusted(-shadowReach, 0, shadowReach, shadowReach + shadowDrop);
}

void PillShape::paint(QPainter& painter) {
    // Where only what is inside is drawn anew there is neither outline nor shadow.
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

void PillShape::paintShadow(QPainter& painter) {
    const double ratio = pixelRatio();
    const QSizeF cast(std::min(width(), widestShadow(painter)), height());
    if (shadow_.isNull() || shadowSize_ != cast || shadow_.devicePixelRatio() != ratio) {
        shadow_ = widened(narrowShadow(cast, ratio),
                          static_cast<int>(std::lround((cast.width() + 2 * shadowReach) * ratio)));
        shadow_.setDevicePixelRatio(ratio);
        shadowSize_ = cast;
    }
    painter.save();
    painter.setOpacity(painter.opacity() * std::clamp(lift_, 0.0, 1.0));
    painter.drawImage(
        QPointF((width() - cast.width()) / 2 - shadowReach, shadowDrop * lift_ - shadowReach),
        shadow_);
    painter.restore();
}

} // namespace brellowind
