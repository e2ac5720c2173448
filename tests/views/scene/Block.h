// SPDX-License-Identifier: MIT

#pragma once

#include "views/scene/Item.h"

#include <QColor>
#include <QPainter>

namespace brellowind::test {

/// A rectangle of one colour that counts its repaints.
class Block : public PainterItem {
public:
    Block(Item* parent, const QRectF& rect, const QColor& color) : PainterItem(parent) {
        setPosition(rect.topLeft());
        setSize(rect.size());
        color_ = color;
    }

    void setColor(const QColor& color) {
        color_ = color;
        update();
    }

    void paint(QPainter& painter) override {
        ++drawn;
        painter.fillRect(boundingRect(), color_);
    }

    int drawn = 0;

private:
    QColor color_;
};

} // namespace brellowind::test
