#include "views/drawing/PainterItem.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGRenderNode>
#include <QSGRendererInterface>

namespace brellowind {
namespace {

class PainterNode final : public QSGRenderNode {
public:
    explicit PainterNode(PainterItem& item) : item_(item) {}

    /// To be called while the main thread may be looked at.
    void synchronise() {
        rect_ = item_.paintedRect();
        markDirty(QSGNode::DirtyMaterial | QSGNode::DirtyGeometry);
    }

    void render(const RenderState* state) override {
        auto* window = item_.window();
        auto* painter = static_cast<QPainter*>(window->rendererInterface()->getResource(
            window, QSGRendererInterface::PainterResource));
        if (!painter)
            return;
        const QRegion* clip = state->clipRegion();
        if (clip && clip->isEmpty())
            return; // clipped away altogether
        if (clip)
            painter->setClipRegion(*clip, Qt::ReplaceClip); // in pixels: before the transformation
        painter->setTransform(matrix()->toTransform());
        painter->setOpacity(inheritedOpacity());
        painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                                QPainter::SmoothPixmapTransform);
        item_.paint(*painter);
    }

    StateFlags changedStates() const override { return {}; }
    RenderingFlags flags() const override { return BoundedRectRendering; }
    QRectF rect() const override { return rect_; }

private:
    PainterItem& item_;
    QRectF rect_;
};

} // namespace

PainterItem::PainterItem(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
}

void PainterItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        update();
}

QSGNode* PainterItem::updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) {
    Q_UNUSED(data)
    auto* painterNode = static_cast<PainterNode*>(node);
    if (!painterNode)
        painterNode = new PainterNode(*this);
    painterNode->synchronise();
    return painterNode;
}

double PainterItem::pixelRatio() const {
    return window() ? window()->effectiveDevicePixelRatio() : 1;
}

} // namespace brellowind
