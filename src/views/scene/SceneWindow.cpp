// SPDX-License-Identifier: MIT

#include "views/scene/SceneWindow.h"

#include "platform/qt/QtMainLoop.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>
#include <utility>

namespace brellowind {
namespace {

/// The smallest number of points, up to 20, that is a whole number of pixels; 0 if none.
int pointsToWholePixels(double ratio) {
    constexpr int most = 20;
    for (int points = 1; points <= most; ++points)
        if (std::abs(points * ratio - std::round(points * ratio)) < 1e-6)
            return points;
    return 0;
}

/// Expands `region`, in points, to pixel boundaries, as needed for clearing and clipping.
QRegion wholePixels(const QRegion& region, double ratio, const QRect& window) {
    const int step = pointsToWholePixels(ratio);
    if (step == 1)
        return region & window;
    if (step == 0)
        return region.isEmpty() ? QRegion() : QRegion(window);
    QRegion grown;
    for (const QRect& rect : region) {
        const QPoint from(rect.left() / step * step, rect.top() / step * step);
        const QPoint to((rect.right() / step + 1) * step, (rect.bottom() / step + 1) * step);
        grown |= QRect(from, to - QPoint(1, 1));
    }
    return grown & window;
}

} // namespace

SceneWindow::SceneWindow(QWindow* parent)
    : QWindow(parent), nextTurn_(platform::QtMainLoop().onNextTurn([this] { makeFrame(); })) {
    setSurfaceType(RasterSurface);
    auto transparent = requestedFormat();
    transparent.setAlphaBufferSize(8);
    setFormat(transparent);
    root_.window_ = this;
}

SceneWindow::~SceneWindow() {
    root_.window_ = nullptr;
}

void SceneWindow::requestFrame() {
    nextTurn_->request();
}

void SceneWindow::damage(const QRectF& rect) {
    damage_ |= covering(rect);
    requestFrame();
}

QImage SceneWindow::grab() {
    aboutToShow();
    updateRenderStates();
    const double ratio = devicePixelRatio();
    QImage image(size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const QRect whole(QPoint(0, 0), size());
    painter.setClipRect(whole);
    root_.draw(painter, whole);
    return image;
}

QRegion SceneWindow::covering(const QRectF& rect) {
    return rect.isEmpty() ? QRegion() : QRegion(rect.toAlignedRect());
}

bool SceneWindow::event(QEvent* event) {
    if (event->type() == QEvent::UpdateRequest)
        requestFrame();
    else if (event->type() == QEvent::Enter)
        pointer_.move(static_cast<QEnterEvent*>(event)->position());
    else if (event->type() == QEvent::Leave)
        pointer_.leave();
    return QWindow::event(event);
}

QAccessibleInterface* SceneWindow::accessibleRoot() const {
    return QAccessible::queryAccessibleInterface(const_cast<SceneWindow*>(this)); // not modified
}

void SceneWindow::paintEvent(QPaintEvent* event) {
    damage_ |= event->region();
    makeFrame();
}

void SceneWindow::hideEvent(QHideEvent* event) {
    pointer_.cancel();
    QWindow::hideEvent(event);
}

void SceneWindow::resizeEvent(QResizeEvent* event) {
    QWindow::resizeEvent(event);
    root_.setSize(size());
    ratio_ = 0;
    requestFrame();
}

void SceneWindow::mouseMoveEvent(QMouseEvent* event) {
    pointer_.move(event->position());
}

void SceneWindow::mousePressEvent(QMouseEvent* event) {
    pointer_.press(event->position(), event->button());
}

void SceneWindow::mouseReleaseEvent(QMouseEvent* event) {
    pointer_.release(event->position(), event->button());
    if (event->source() == Qt::MouseEventSynthesizedByQt)
        pointer_.leave(); // touch does not hover
}

void SceneWindow::makeFrame() {
    if (!isExposed())
        return;
    aboutToShow();
    updateRenderStates();
    const QRect whole(QPoint(0, 0), size());
    const double ratio = devicePixelRatio();
    if (std::exchange(ratio_, ratio) != ratio) {
        store_.resize(size());
        damage_ = whole;
    }
    // Clip first: `wholePixels` rounds towards 0, so coordinates must not be negative.
    const QRegion region = wholePixels(std::exchange(damage_, {}) & whole, ratio, whole);
    if (region.isEmpty())
        return;
    store_.beginPaint(region); // and clears it, since the window has an alpha channel
    paintStore(region);
    store_.endPaint();
    present([&] { store_.flush(region); });
    Q_EMIT frameShown();
    pointer_.updateHover();
}

void SceneWindow::paintStore(const QRegion& region) {
    QPainter painter(store_.paintDevice());
    painter.setClipRegion(region);
    root_.draw(painter, region);
}

void SceneWindow::updateRenderStates() {
    root_.updateRenderState({{}, 1, {}, QRectF(QPointF(0, 0), size())}, true, damage_);
}

} // namespace brellowind
